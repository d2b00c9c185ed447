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
    // The picture is cut before it is scaled: a long and narrow one would become enormous.
    const QSize shown = devicePixels.scaled(picture_.size(), Qt::KeepAspectRatio);
    QRect middle(QPoint(), shown.expandedTo(QSize(1, 1)));
    middle.moveCenter(picture_.rect().center());
    scaled_ = QPixmap::fromImage(picture_.copy(middle).scaled(devicePixels, Qt::IgnoreAspectRatio,
                                                              Qt::SmoothTransformation));
  }
  QPainter(this).drawPixmap(rect(), scaled_);
}
