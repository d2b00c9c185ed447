#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "core/Square.h"

// A set of squares, one bit a square by its on-screen index; a column is a byte.
using SquareSet = std::uint64_t;

constexpr SquareSet OneSquare(int index) {
  return SquareSet{1} << index;
}

constexpr bool HasTwo(SquareSet squares) {
  return (squares & (squares - 1)) != 0;
}

// Everything a knight's move away from any of these squares.
constexpr SquareSet KnightSteps(SquareSet squares) {
  const SquareSet oneRow =
      (squares >> 1 & 0x7f7f7f7f7f7f7f7fU) | (squares << 1 & 0xfefefefefefefefeU);
  const SquareSet twoRows =
      (squares >> 2 & 0x3f3f3f3f3f3f3f3fU) | (squares << 2 & 0xfcfcfcfcfcfcfcfcU);
  return oneRow << 16 | oneRow >> 16 | twoRows << 8 | twoRows >> 8;
}

inline constexpr std::array<SquareSet, SquareCount> KnightTargets = [] {
  std::array<SquareSet, SquareCount> targets{};
  for (int index = 0; index < SquareCount; ++index) {
    targets[static_cast<std::size_t>(index)] = KnightSteps(OneSquare(index));
  }
  return targets;
}();

// Those of `within` that a knight which is anywhere in `from`, a part of `within`, can get to by
// moves inside `within`; all of it as soon as it has got to all of `goals`.
constexpr SquareSet Reachable(SquareSet from, SquareSet goals, SquareSet within) {
  for (SquareSet reached = from;;) {
    const SquareSet further = (reached | KnightSteps(reached)) & within;
    if ((goals & ~further) == 0) return within;
    if (further == reached) return reached;
    reached = further;
  }
}
