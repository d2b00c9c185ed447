#include "ui/support/ValueLabel.h"

#include <QEvent>
#include <QPainter>

namespace {

QPixmap NewPixmap(const QSize& size, double devicePixelRatio) {
  QPixmap pixmap(size * devicePixelRatio);
  pixmap.setDevicePixelRatio(devicePixelRatio);
  return pixmap;
}

}  // namespace

ValueLabel::ValueLabel(const QString& longest, QWidget* parent) : QLabel(longest, parent) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setFixedSize(sizeHint());
  setAttribute(Qt::WA_OpaquePaintEvent);
}

// On a screen with another scale everything is drawn anew.
void ValueLabel::paintEvent(QPaintEvent*) {
  if (background_.devicePixelRatio() != devicePixelRatio()) Forget();
  if (background_.isNull()) DrawBackground();
  QPainter painter(this);
  painter.drawPixmap(0, 0, background_);
  const QString shown = text();
  double left = width();
  for (auto character = shown.crbegin(); character != shown.crend(); ++character) {
    const QPixmap& drawn = Character(*character);
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
  QLabel::changeEvent(event);
  Forget();
}

void ValueLabel::moveEvent(QMoveEvent* event) {
  QLabel::moveEvent(event);
  Forget();
}
