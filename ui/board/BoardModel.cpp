#include "ui/board/BoardModel.h"

#include <bit>
#include <cmath>
#include <utility>

namespace {

constexpr double CentringToleranceTwips = 0.5;

constexpr BoardModel::CellSet AllCells = ~BoardModel::CellSet{0};

constexpr bool IsLightSquare(int index) {
  return (ColumnOf(index) + RowOf(index)) % 2 == 1;
}

constexpr BoardModel::CellSet OneCell(int index) {
  return BoardModel::CellSet{1} << index;
}

constexpr bool Has(BoardModel::CellSet cells, int index) {
  return (cells & OneCell(index)) != 0;
}

BoardModel::CellSet VisitedCells(const GameState& state) {
  BoardModel::CellSet visited = 0;
  for (int x = 0; x < BoardSide; ++x) {
    for (int y = 0; y < BoardSide; ++y) {
      const bool isVisited = state.Cell(x, y) != GameState::Unvisited;
      visited |= BoardModel::CellSet{isVisited} << SquareIndex(x, y);
    }
  }
  return visited;
}

}  // namespace

template <typename Property, typename Value>
void BoardModel::Write(int index, Property BoardCell::*property, Value value) {
  BoardCell& cell = cells_[static_cast<std::size_t>(index)];
  if (cell.*property == value) return;
  cell.*property = value;
  changes_ |= OneCell(index);
  touched_ |= OneCell(index);
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

  const Subject subject = SubjectOf(state, look);
  const bool centred = look.UseImages && look.ImagePositioning == Positioning::Centred;
  for (CellSet cells = CellsToRestore(subject); cells != 0; cells &= cells - 1) {
    const int index = std::countr_zero(cells);
    RestoreCell(index, subject);
    if (centred) Centre(index);
  }
  restored_ = subject;
  touched_ = 0;
}

BoardModel::Subject BoardModel::SubjectOf(const GameState& state, const BoardLook& look) {
  return {VisitedCells(state), SquareIndex(state.KnightX, state.KnightY), state.FirstMoveMade,
          look};
}

BoardModel::CellSet BoardModel::CellsToRestore(const Subject& subject) const {
  if (subject.look != restored_.look) return AllCells;
  return touched_ | (subject.visited ^ restored_.visited) | OneCell(subject.knight) |
         OneCell(restored_.knight);
}

void BoardModel::RestoreCell(int index, const Subject& subject) {
  const BoardLook& look = subject.look;
  const bool isKnights = index == subject.knight;
  if (!Has(subject.visited, index)) {
    if (IsLightSquare(index)) {
      GiveLook(index, look, look.LightColor, SquarePicture::Light);
    } else {
      GiveLook(index, look, look.DarkColor, SquarePicture::Dark);
    }
  } else if (!isKnights) {
    GiveLook(index, look, look.VisitedColor, SquarePicture::Visited);
  }
  Write(index, &BoardCell::border, look.UseBorders);
  RestoreImage(index, look);
  if (isKnights && subject.firstMoveMade) {
    GiveLook(index, look, look.KnightColor, SquarePicture::Knight);
  }
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

void BoardModel::SetCellSide(double side) {
  cellSide_ = side;
  touched_ = AllCells;
}

void BoardModel::SetPictureSize(SquarePicture picture, PictureSize size) {
  touched_ = AllCells;
  pictureSizes_[static_cast<std::size_t>(picture)] = size;
}

BoardModel::CellSet BoardModel::TakeChanges() {
  return std::exchange(changes_, CellSet{0});
}
