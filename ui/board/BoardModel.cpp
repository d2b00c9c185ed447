#include "ui/board/BoardModel.h"

#include <cmath>
#include <utility>

namespace {

constexpr double CentringToleranceTwips = 0.5;

constexpr bool IsLightSquare(int x, int y) {
  return (x + y) % 2 == 1;
}

}  // namespace

template <typename Property, typename Value>
void BoardModel::Write(int index, Property BoardCell::*property, Value value) {
  BoardCell& cell = cells_[static_cast<std::size_t>(index)];
  if (cell.*property == value) return;
  cell.*property = value;
  changes_ |= CellSet{1} << index;
}

// Colour and picture change together, and only when the colour does.
void BoardModel::GiveLook(int index, const BoardLook& look, Color color, SquarePicture picture) {
  if (Cell(index).backColor == color) return;
  Write(index, &BoardCell::backColor, color);
  if (look.UseImages) Write(index, &BoardCell::picture, picture);
}

void BoardModel::RestoreColors(const GameState& state, const BoardLook& look, int x, int y) {
  const bool sameSquare = x == lastRestoreX_ && y == lastRestoreY_ && x != -1 && y != -1;
  if (sameSquare || state.SolverRunning) return;
  lastRestoreX_ = x;
  lastRestoreY_ = y;

  for (int row = 0; row < BoardSide; ++row) {
    for (int column = 0; column < BoardSide; ++column) RestoreCell(state, look, column, row);
  }
  if (state.FirstMoveMade) {
    GiveLook(SquareIndex(state.KnightX, state.KnightY), look, look.KnightColor,
             SquarePicture::Knight);
  }
  if (look.UseImages && look.ImagePositioning == Positioning::Centred) ReCenterImages(look);
}

void BoardModel::RestoreCell(const GameState& state, const BoardLook& look, int x, int y) {
  const int index = SquareIndex(x, y);
  if (state.Cell(x, y) == GameState::Unvisited) {
    if (IsLightSquare(x, y)) {
      GiveLook(index, look, look.LightColor, SquarePicture::Light);
    } else {
      GiveLook(index, look, look.DarkColor, SquarePicture::Dark);
    }
  } else if (x != state.KnightX || y != state.KnightY) {
    GiveLook(index, look, look.VisitedColor, SquarePicture::Visited);
  }
  Write(index, &BoardCell::border, look.UseBorders);
  RestoreImage(index, look);
}

void BoardModel::RestoreImage(int index, const BoardLook& look) {
  if (!look.UseImages) {
    Write(index, &BoardCell::imageVisible, false);
    return;
  }
  const BoardCell& cell = Cell(index);
  if (!cell.stretch && look.ImagePositioning == Positioning::Stretched)
    Write(index, &BoardCell::stretch, true);
  if (cell.stretch && look.ImagePositioning == Positioning::Centred)
    Write(index, &BoardCell::stretch, false);
  Write(index, &BoardCell::imageVisible, true);
}

void BoardModel::HighlightSquare(const GameState& state, const BoardLook& look, int index,
                                 bool forced) {
  const int x = ColumnOf(index);
  const int y = RowOf(index);
  const bool followsCursor =
      look.HighlightingMethod == Highlighting::CursorPosition || !state.FirstMoveMade;
  if (forced || (followsCursor && Cell(index).backColor != look.HighlightColor)) {
    RestoreColors(state, look, x, y);
    Highlight(index, look);
  } else if (look.HighlightingMethod == Highlighting::ValidMovesOnly) {
    RestoreColors(state, look, x, y);
    const bool isValidMove = state.Cell(x, y) == GameState::Unvisited &&
                             IsKnightsMove(state.KnightX, state.KnightY, x, y);
    if (isValidMove && Cell(index).backColor != look.HighlightColor) Highlight(index, look);
  }
}

void BoardModel::Highlight(int index, const BoardLook& look) {
  Write(index, &BoardCell::backColor, look.HighlightColor);
  if (!look.UseImages) return;
  Write(index, &BoardCell::picture, SquarePicture::Highlight);
  if (look.ImagePositioning == Positioning::Centred) ReCenterImages(look);
}

void BoardModel::ReCenterImages(const BoardLook& look) {
  for (int index = 0; index < SquareCount; ++index) {
    if (look.ImagePositioning == Positioning::Centred) {
      Centre(index);
    } else {
      Stretch(index);
    }
  }
}

// An image that does not stretch has its picture's own size.
void BoardModel::Centre(int index) {
  const BoardCell& cell = Cell(index);
  if (!cell.picture) return;
  const PictureSize size = pictureSizes_[static_cast<std::size_t>(*cell.picture)];
  Write(index, &BoardCell::imageWidth, size.width);
  Write(index, &BoardCell::imageHeight, size.height);
  const double left = cellSide_ / 2 - size.width / 2;
  const double top = cellSide_ / 2 - size.height / 2;
  if (std::abs(cell.imageLeft - left) > CentringToleranceTwips) {
    Write(index, &BoardCell::imageLeft, left);
  }
  if (std::abs(cell.imageTop - top) > CentringToleranceTwips) {
    Write(index, &BoardCell::imageTop, top);
  }
}

void BoardModel::Stretch(int index) {
  Write(index, &BoardCell::imageLeft, 0.0);
  Write(index, &BoardCell::imageTop, 0.0);
  Write(index, &BoardCell::imageHeight, cellSide_);
  Write(index, &BoardCell::imageWidth, cellSide_);
}

void BoardModel::SetPictureSize(SquarePicture picture, PictureSize size) {
  pictureSizes_[static_cast<std::size_t>(picture)] = size;
}

BoardModel::CellSet BoardModel::TakeChanges() {
  return std::exchange(changes_, CellSet{0});
}
