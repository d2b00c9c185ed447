#include "ui/board/CellPainter.h"

#include <cmath>
#include <utility>

#include <QPainter>

#include "ui/board/BoardLayout.h"
#include "ui/board/SystemColors.h"

namespace {

// Looks come and go with the highlight; so many are enough for every size and state at once.
constexpr std::size_t MaximumLooks = 64;

int DevicePixels(double twips, double devicePixelRatio) {
  return static_cast<int>(std::lround(PixelsFromTwips(twips) * devicePixelRatio));
}

}  // namespace

void CellPainter::SetPictures(const BoardPictures& pictures) {
  pictures_ = pictures.squares;
  Clear();
}

const QPixmap& CellPainter::PixmapFor(const BoardCell& cell, Color color, const QPalette& palette,
                                      const QSize& size, double devicePixelRatio) {
  const bool hasPicture = cell.imageVisible && cell.picture.has_value();
  const int picture = hasPicture ? static_cast<int>(*cell.picture) : -1;
  const Look look{size.width(), size.height(), color,          cell.border,
                  picture,      cell.stretch,  cell.imageLeft, cell.imageTop};
  if (const auto made = pixmaps_.find(look); made != pixmaps_.end()) return made->second;
  if (pixmaps_.size() >= MaximumLooks) Clear();

  QImage image(size, QImage::Format_RGB32);
  image.fill(ResolveColor(color, palette));
  QPainter painter(&image);
  const int border = cell.border ? DevicePixels(BorderTwips, devicePixelRatio) : 0;
  const QRect inside = image.rect().adjusted(border, border, -border, -border);
  if (hasPicture) DrawPicture(painter, cell, inside, devicePixelRatio);
  if (border > 0) {
    QRegion frame(image.rect());
    frame -= inside;
    for (const QRect& side : frame) painter.fillRect(side, Qt::black);
  }
  painter.end();
  return pixmaps_.emplace(look, QPixmap::fromImage(std::move(image))).first->second;
}

void CellPainter::DrawPicture(QPainter& painter, const BoardCell& cell, const QRect& inside,
                              double devicePixelRatio) const {
  const QImage& picture = pictures_[static_cast<std::size_t>(*cell.picture)];
  if (picture.isNull() || inside.isEmpty()) return;
  painter.setClipRect(inside);
  if (cell.stretch) {
    painter.drawImage(inside.topLeft(), picture.scaled(inside.size(), Qt::IgnoreAspectRatio,
                                                       Qt::SmoothTransformation));
  } else {
    const QPoint at = inside.topLeft() + QPoint(DevicePixels(cell.imageLeft, devicePixelRatio),
                                                DevicePixels(cell.imageTop, devicePixelRatio));
    const QSize size(DevicePixels(cell.imageWidth, devicePixelRatio),
                     DevicePixels(cell.imageHeight, devicePixelRatio));
    // Scaled on the way: the picture may be many times larger than the square that it is cut to.
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(at, size), picture);
  }
  painter.setClipping(false);
}
