#include "ui/widgets/ValueLabel.h"

#include <utility>

#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>

#include "core/Square.h"

namespace {

// Each change costs a reader several questions. One that is busy with them says late what matters.
constexpr int TellingMilliseconds = 100;
constexpr int RestingMilliseconds = 1000;

class AccessibleValue : public QAccessibleWidget {
 public:
  explicit AccessibleValue(ValueLabel& label)
      : QAccessibleWidget(&label, QAccessible::StaticText), label_(label) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? label_.Text() : QAccessibleWidget::text(kind);
  }

 private:
  ValueLabel& label_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* label = dynamic_cast<ValueLabel*>(object);
  return label == nullptr ? nullptr : new AccessibleValue(*label);
}

QPixmap NewPixmap(const QSize& size, double devicePixelRatio) {
  QPixmap pixmap(size * devicePixelRatio);
  pixmap.setDevicePixelRatio(devicePixelRatio);
  return pixmap;
}

}  // namespace

QString AsNumber(std::int64_t value) {
  return QString::number(value);
}

QString AsSquare(std::int64_t value) {
  const int index = static_cast<int>(value);
  return QString::fromStdString(SquareName(ColumnOf(index), RowOf(index)));
}

ValueLabel::ValueLabel(PicturePace& pace, const QString& longest, QWidget* parent)
    : QWidget(parent), pace_(pace), picture_(pace, *this, [this] { update(); }) {
  QAccessible::installFactory(MakeAccessible);
  setFixedSize(fontMetrics().size(Qt::TextSingleLine, longest));
  setAttribute(Qt::WA_OpaquePaintEvent);
  tellScreenReader_.setSingleShot(true);
  tellScreenReader_.setInterval(TellingMilliseconds);
  connect(&tellScreenReader_, &QTimer::timeout, this, &ValueLabel::TellScreenReader);
}

void ValueLabel::TellScreenReader() {
  const bool isSoonAgain = sinceTold_.isValid() && !sinceTold_.hasExpired(RestingMilliseconds);
  if (pace_.Work() != nullptr && isSoonAgain) return tellScreenReader_.start();
  sinceTold_.start();
  QAccessibleEvent event(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void ValueLabel::ShowValue(std::int64_t value, Wording wording) {
  if (value == value_ && wording == wording_) return;
  value_ = value;
  wording_ = wording;
  picture_.Changed();
  if (!tellScreenReader_.isActive()) tellScreenReader_.start();
}

// On a screen with another scale everything is drawn anew, and in the other colours that a style
// may have for windows that are not the active one.
void ValueLabel::paintEvent(QPaintEvent*) {
  const Look look{devicePixelRatio(), palette().cacheKey(), palette().currentColorGroup()};
  if (std::exchange(look_, look) != look) Forget();
  if (background_.isNull()) DrawBackground();
  QPainter painter(this);
  painter.drawPixmap(0, 0, background_);
  const QString shown = Text();
  double left = width();
  for (qsizetype place = shown.size() - 1; place >= 0; --place) {
    const QPixmap& drawn = Character(shown[place]);
    left -= drawn.width() / drawn.devicePixelRatio();
    painter.drawPixmap(QPointF(left, 0), drawn);
  }
}

void ValueLabel::DrawBackground() {
  background_ = NewPixmap(size(), devicePixelRatio());
  parentWidget()->render(&background_, QPoint(), QRegion(geometry()),
                         QWidget::DrawWindowBackground);
}

const QPixmap& ValueLabel::Character(QChar character) {
  const auto drawn = characters_.find(character);
  if (drawn != characters_.end()) return drawn->second;
  const QSize size(fontMetrics().horizontalAdvance(character), height());
  QPixmap pixmap = NewPixmap(size, devicePixelRatio());
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setFont(font());
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, character);
  painter.end();
  return characters_.emplace(character, std::move(pixmap)).first->second;
}

void ValueLabel::Forget() {
  background_ = QPixmap();
  characters_.clear();
}

void ValueLabel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  Forget();
}

void ValueLabel::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  Forget();
}
