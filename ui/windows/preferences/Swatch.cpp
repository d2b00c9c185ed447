#include "ui/windows/preferences/Swatch.h"

#include <QPainter>
#include <QVBoxLayout>

#include "ui/board/SystemColors.h"

namespace {

constexpr QSize SwatchSize(64, 40);
constexpr int LineWidth = 1;

}  // namespace

PreviewImage::PreviewImage(QWidget* parent) : QWidget(parent) {
  hide();
}

void PreviewImage::SetPicture(const QImage& picture) {
  picture_ = picture;
  stretched_ = QPixmap();
  setVisible(HasPicture());
  update();
}

void PreviewImage::SetPositioning(Positioning positioning) {
  positioning_ = positioning;
  update();
}

void PreviewImage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (positioning_ == Positioning::Centred) {
    PaintInTheMiddle(painter);
  } else {
    PaintStretched(painter);
  }
}

// Only what is seen of the picture is drawn, which may be a corner of a large one.
void PreviewImage::PaintInTheMiddle(QPainter& painter) {
  QRect place(QPoint(), picture_.size());
  place.moveCenter(rect().center());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, picture_);
}

void PreviewImage::PaintStretched(QPainter& painter) {
  const QSize devicePixels = size() * devicePixelRatioF();
  if (stretched_.size() != devicePixels) {
    stretched_ = QPixmap::fromImage(
        picture_.scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  painter.drawPixmap(rect(), stretched_);
}

Swatch::Swatch(QWidget* parent) : QWidget(parent), image_(new PreviewImage(this)) {
  setFixedSize(SwatchSize);
  setFocusPolicy(QAccessible::isActive() ? Qt::TabFocus : Qt::NoFocus);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(LineWidth, LineWidth, LineWidth, LineWidth);
  layout->addWidget(image_);
}

void Swatch::SetColor(Color color) {
  color_ = color;
  update();
}

void Swatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ResolveColor(color_, palette()));
  painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Dark));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void Swatch::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  // Later: the dialog that gives the keyboard back may have chosen something else to show.
  const auto tell = [this] { reader_.LeadTo(rect(), accessibleName()); };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
  update();
}

void Swatch::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}
