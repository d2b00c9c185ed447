#pragma once

#include <array>

#include <QImage>

#include "storage/Settings.h"
#include "ui/board/BoardModel.h"
#include "ui/widgets/pictures/PictureReader.h"

// The pictures of the board: imgImages(0) to (4) and imgChessboardBackground. A null image shows
// the colour beneath it.
struct BoardPictures {
  std::array<QImage, SquarePictureCount> squares;
  QImage background;
};

// Those that the settings name.
BoardPictures LoadBoardPictures(const Settings& settings, PictureReader& reader);
