#pragma once

#include <array>
#include <cstdint>

#include "core/Square.h"

// The yardstick of the solver's speed: the search written down as it is read, a recursion over an
// 8 by 8 array. It counts entries and pauses for nothing.
class ReferenceSearch {
 public:
  // From the corner (0, 0); stops after at least so many entries.
  std::int64_t Run(std::int64_t entries) {
    board_ = {};
    board_[0][0] = true;
    taken_ = 1;
    tested_ = 0;
    limit_ = entries;
    Enter(0, 0);
    return tested_;
  }

 private:
  bool Enter(int x, int y) {
    ++tested_;
    if (taken_ == SquareCount) return true;
    if (tested_ >= limit_) return true;
    return Try<1, 2>(x, y) || Try<2, 1>(x, y) || Try<-1, 2>(x, y) || Try<-2, 1>(x, y) ||
           Try<1, -2>(x, y) || Try<2, -1>(x, y) || Try<-1, -2>(x, y) || Try<-2, -1>(x, y);
  }

  template <int dx, int dy>
  bool Try(int x, int y) {
    const int nextX = x + dx;
    const int nextY = y + dy;
    if (!IsSquare(nextX, nextY)) return false;
    bool& cell = board_[static_cast<std::size_t>(nextX)][static_cast<std::size_t>(nextY)];
    if (cell) return false;
    cell = true;
    ++taken_;
    if (Enter(nextX, nextY)) return true;
    cell = false;
    --taken_;
    return false;
  }

  std::array<std::array<bool, BoardSide>, BoardSide> board_{};
  int taken_ = 0;
  std::int64_t tested_ = 0;
  std::int64_t limit_ = 0;
};
