#include "ui/windows/scores/CoverPicture.h"

#include <QPainter>

void CoverPicture::SetPicture(const QImage& picture) {
  picture_ = picture;
  scaled_ = QPixmap();
  update();
}

void CoverPicture::paintEvent(QPaintEvent*) {
  if (picture_.isNull()) return;
  const QSize devicePixels = size() * devicePixelRatioF();
  if (scaled_.size() != devicePixels) {
    const QImage large =
        picture_.scaled(devicePixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    QRect middle(QPoint(), devicePixels);
    middle.moveCenter(large.rect().center());
    scaled_ = QPixmap::fromImage(large.copy(middle));
  }
  QPainter(this).drawPixmap(rect(), scaled_);
}
