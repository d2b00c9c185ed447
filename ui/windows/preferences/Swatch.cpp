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
  scaled_ = QPixmap();
  setVisible(HasPicture());
  update();
}

void PreviewImage::SetPositioning(int imagePositioning) {
  positioning_ = imagePositioning;
  update();
}

QSize PreviewImage::SizeOfPicture() const {
  return positioning_ == 1 ? picture_.size() : size();
}

void PreviewImage::paintEvent(QPaintEvent*) {
  const QSize devicePixels = SizeOfPicture() * devicePixelRatioF();
  if (scaled_.size() != devicePixels) {
    scaled_ = QPixmap::fromImage(
        picture_.scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  QRect place(QPoint(), SizeOfPicture());
  place.moveCenter(rect().center());
  QPainter(this).drawPixmap(place, scaled_);
}

Swatch::Swatch(QWidget* parent) : QWidget(parent), image_(new PreviewImage(this)) {
  setFixedSize(SwatchSize);
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
  painter.setPen(palette().color(QPalette::Dark));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}
