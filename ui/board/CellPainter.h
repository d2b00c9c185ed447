#pragma once

#include <map>
#include <tuple>

#include <QPalette>
#include <QPixmap>

#include "ui/board/BoardModel.h"
#include "ui/board/BoardPictures.h"

class QPainter;

// Makes the opaque pixmap of a cell's look in device pixels, and keeps it for all cells that share
// the look.
class CellPainter {
 public:
  void SetPictures(const BoardPictures& pictures);
  // Forgets what was made: for a new size, scale or palette.
  void Clear() { pixmaps_.clear(); }

  // size: device pixels. color: as it is stored; it is looked up in the palette only for a pixmap
  // that has to be made.
  const QPixmap& PixmapFor(const BoardCell& cell, Color color, const QPalette& palette,
                           const QSize& size, double devicePixelRatio);

 private:
  using Look = std::tuple<int, int, Color, bool, int, bool, double, double>;

  void DrawPicture(QPainter& painter, const BoardCell& cell, const QRect& inside,
                   double devicePixelRatio) const;

  std::array<QImage, SquarePictureCount> pictures_;
  std::map<Look, QPixmap> pixmaps_;
};
