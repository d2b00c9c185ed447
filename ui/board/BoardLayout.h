#pragma once

#include <array>

#include "core/Square.h"
#include "core/Twips.h"

// The arithmetic of the board's sizes.

inline constexpr double MinimumInnerHeightTwips = 2800.0;
inline constexpr double DesignedInnerSideTwips = 9600.0;
inline constexpr double BorderTwips = TwipsPerPixel;  // a single-line border, on each side

struct BoardLayout {
  double cornerDistance = 0;  // twips: the frame around the board
  double squareSide = 0;      // twips: the outside of a cell, at least one pixel
};

// innerHeight and cornerDistance in twips. A frame that leaves no room gives squares of one pixel.
BoardLayout LayOutBoard(double innerHeight, double cornerDistance);

// The inside of a cell in twips: less its border where it has one.
double InnerCellSide(const BoardLayout& layout, bool useBorders);

// The nine edges of the columns (and of the rows) in device pixels, each rounded on its own, so
// that no seam is blended and the board fills its area exactly.
std::array<int, BoardSide + 1> CellEdges(const BoardLayout& layout, double devicePixelRatio);

// From its first logical pixel up to the one after its last.
struct PixelSpan {
  int begin = 0;
  int end = 0;
};

// The logical pixels that each column (and row) touches.
std::array<PixelSpan, BoardSide> CellSpans(const BoardLayout& layout, double devicePixelRatio);

// Which column (or row) holds a position in logical pixels; -1 outside the board.
int SquareAt(const BoardLayout& layout, double devicePixelRatio, double position);
