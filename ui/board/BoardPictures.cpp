#include "ui/board/BoardPictures.h"

#include <utility>

BoardPictures LoadBoardPictures(const Settings& settings, PictureReader& reader) {
  std::vector<QImage> images = reader.Read(
      {settings.LightImage, settings.DarkImage, settings.VisitedImage, settings.KnightImage,
       settings.HighlightImage, settings.ChessboardBackgroundImage});
  BoardPictures pictures;
  std::move(images.begin(), images.end() - 1, pictures.squares.begin());
  pictures.background = images.back();
  return pictures;
}
