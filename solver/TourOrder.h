#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "core/Square.h"
#include "solver/SquareSet.h"

// The order in which the search and autoplay try the knight's moves. It decides which tour is found
// and differs from the order in which the end of a game is looked for.
inline constexpr std::array<Offset, 8> TourMoveOffsets{
    {{+1, +2}, {+2, +1}, {-1, +2}, {-2, +1}, {+1, -2}, {+2, -1}, {-1, -2}, {-2, -1}}};

// Tries still to be made from one square: bit i stands for TourMoveOffsets[i], so that the next try
// is the lowest bit.
using Tries = std::uint32_t;

namespace TourOrder {

// The set is rotated until the knight stands on this bit. Its targets are then the same eight bits
// wherever it was, and the multiplication brings each choice of them to a byte of its own.
inline constexpr int KnightBit = 33;
inline constexpr std::uint64_t Gather = 0x10400101000U;

// What a try adds to the on-screen index.
inline constexpr std::array<int, 8> Steps = [] {
  std::array<int, 8> steps{};
  for (std::size_t i = 0; i < steps.size(); ++i) {
    steps[i] = SquareIndex(TourMoveOffsets[i].dx, TourMoveOffsets[i].dy);
  }
  return steps;
}();

constexpr std::size_t Gathered(SquareSet targetsOfKnightBit) {
  return targetsOfKnightBit * Gather >> 56;
}

inline constexpr std::array<std::uint8_t, 256> TriesOfGathered = [] {
  std::array<std::uint8_t, 256> table{};
  for (Tries tries = 0; tries < table.size(); ++tries) {
    SquareSet targets = 0;
    for (std::size_t i = 0; i < Steps.size(); ++i) {
      if ((tries >> i & 1U) != 0) targets |= OneSquare(KnightBit + Steps[i]);
    }
    table[Gathered(targets)] = static_cast<std::uint8_t>(tries);
  }
  return table;
}();

}  // namespace TourOrder

// The tries that lead from a square to these targets of its.
constexpr Tries TriesTo(int square, SquareSet targets) {
  return TourOrder::TriesOfGathered[TourOrder::Gathered(
      std::rotr(targets, square - TourOrder::KnightBit))];
}

// The target of the next of these tries, of which there is at least one.
constexpr int NextTarget(int square, Tries tries) {
  return square + TourOrder::Steps[static_cast<std::size_t>(std::countr_zero(tries))];
}
