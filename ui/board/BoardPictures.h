#pragma once

#include <array>

#include <QImage>

#include "ui/board/BoardModel.h"

// The pictures of the board: imgImages(0) to (4) and imgChessboardBackground. A null image shows
// the colour beneath it.
struct BoardPictures {
  std::array<QImage, SquarePictureCount> squares;
  QImage background;
};
