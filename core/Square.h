#pragma once

#include <array>
#include <cstdlib>
#include <string>

// The squares of the board: column x grows to the right, row y downward, each 0..7.

inline constexpr int BoardSide = 8;
inline constexpr int SquareCount = BoardSide * BoardSide;

struct Offset {
  int dx;
  int dy;
};

// The order in which the end of a game is looked for; the search for a tour has its own order.
inline constexpr std::array<Offset, 8> KnightMoveOffsets{
    {{+2, +1}, {+2, -1}, {-2, +1}, {-2, -1}, {+1, +2}, {+1, -2}, {-1, +2}, {-1, -2}}};

constexpr bool IsSquare(int x, int y) {
  return x >= 0 && x < BoardSide && y >= 0 && y < BoardSide;
}

// On-screen numbering, column by column; 0..63 for the squares of the board.
constexpr int SquareIndex(int x, int y) {
  return x * BoardSide + y;
}

constexpr bool IsSquareIndex(int index) {
  return index >= 0 && index < SquareCount;
}

constexpr int ColumnOf(int index) {
  return index / BoardSide;
}

constexpr int RowOf(int index) {
  return index % BoardSide;
}

inline bool IsKnightsMove(int fromX, int fromY, int toX, int toY) {
  const int across = std::abs(fromX - toX);
  const int down = std::abs(fromY - toY);
  return (across == 1 && down == 2) || (across == 2 && down == 1);
}

// "A8" is the top-left square (0, 0), "H1" the bottom-right one (7, 7).
inline std::string SquareName(int x, int y) {
  return {static_cast<char>('A' + x), static_cast<char>('8' - y)};
}
