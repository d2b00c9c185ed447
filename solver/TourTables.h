#pragma once

#include <array>
#include <cstdint>

#include "core/Square.h"
#include "solver/TourMoves.h"

// Labels of the 64 squares under which the search finds the next candidate as the lowest bit of a
// set. No single labelling has the eight moves in the order in which they are tried, but the four
// that go down the board have one, and the four that go up have its mirror image.
namespace TourTables {

using Label = std::uint8_t;
using Squares = std::uint64_t;

// Increases along (+1,+2), (+2,+1), (-1,+2), (-2,+1) from any square.
constexpr int DownRank(int x, int y) {
  return -2 * x - 5 * y;
}

struct Tables {
  std::array<Label, SquareCount> downLabel{};     // by on-screen index
  std::array<std::uint8_t, SquareCount> index{};  // on-screen index by downward label
  // All by downward label:
  std::array<Squares, SquareCount> down{};    // the downward targets, as downward labels
  std::array<Squares, SquareCount> up{};      // the upward targets, as upward labels
  std::array<Squares, SquareCount> upBit{};   // the square itself, as an upward label
  std::array<Label, SquareCount> downOfUp{};  // downward label by upward label
};

constexpr Tables Make() {
  Tables tables;
  std::array<Label, SquareCount> upLabel{};
  for (int index = 0; index < SquareCount; ++index) {
    const int rank = DownRank(ColumnOf(index), RowOf(index));
    int label = 0;
    for (int other = 0; other < SquareCount; ++other) {
      const int otherRank = DownRank(ColumnOf(other), RowOf(other));
      if (otherRank < rank || (otherRank == rank && other < index)) ++label;
    }
    tables.downLabel[static_cast<std::size_t>(index)] = static_cast<Label>(label);
    tables.index[static_cast<std::size_t>(label)] = static_cast<std::uint8_t>(index);
  }
  const auto at = [](int x, int y) { return static_cast<std::size_t>(SquareIndex(x, y)); };
  for (int x = 0; x < BoardSide; ++x) {
    for (int y = 0; y < BoardSide; ++y) {
      upLabel[at(x, y)] = tables.downLabel[at(x, BoardSide - 1 - y)];
    }
  }
  for (int x = 0; x < BoardSide; ++x) {
    for (int y = 0; y < BoardSide; ++y) {
      const Label label = tables.downLabel[at(x, y)];
      tables.upBit[label] = Squares{1} << upLabel[at(x, y)];
      tables.downOfUp[upLabel[at(x, y)]] = label;
      for (const Offset offset : TourMoveOffsets) {
        const int targetX = x + offset.dx;
        const int targetY = y + offset.dy;
        if (!IsSquare(targetX, targetY)) continue;
        if (offset.dy > 0) {
          tables.down[label] |= Squares{1} << tables.downLabel[at(targetX, targetY)];
        } else {
          tables.up[label] |= Squares{1} << upLabel[at(targetX, targetY)];
        }
      }
    }
  }
  return tables;
}

inline constexpr Tables Of = Make();

}  // namespace TourTables
