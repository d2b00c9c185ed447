#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "solver/SquareSet.h"

// All that the search does from one square on, up to where it leaves that square again, is decided
// by these three.
struct Subtree {
  SquareSet squares = 0;  // those that the knight can still get to
  int knight = 0;         // its square
  bool closing = false;   // no other square is free, so that a tour may be found here

  SquareSet Targets() const { return KnightTargets[static_cast<std::size_t>(knight)] & squares; }
};

// How many entries the search made in the subtrees that it left, for those it left last.
class SubtreeSizes {
 public:
  // More than any search comes to, also with a little added.
  static constexpr std::int64_t Unknown = std::numeric_limits<std::int64_t>::max() / 2;

  // The table takes 2 MB: a smaller one knows less, a larger one is waited for longer.
  SubtreeSizes() : rows_(std::size_t{1} << RowBits) {}

  // Has the row brought near that a later Find reads: to wait for it took half of the time.
  void Fetch(const Subtree& subtree) const { __builtin_prefetch(&rows_[RowOf(subtree)]); }

  std::int64_t Find(const Subtree& subtree) const {
    const Row& row = rows_[RowOf(subtree)];
    const bool found = row.squares == subtree.squares && (row.rest & RootMask) == Root(subtree);
    return found ? static_cast<std::int64_t>(row.rest >> RootBits) : Unknown;
  }

  // The place is taken from the subtree that had it.
  void Keep(const Subtree& subtree, std::int64_t size) {
    rows_[RowOf(subtree)] = {subtree.squares,
                             static_cast<std::uint64_t>(size) << RootBits | Root(subtree)};
  }

 private:
  static constexpr int RowBits = 17;
  static constexpr int RootBits = 7;
  static constexpr std::uint64_t RootMask = (1U << RootBits) - 1;

  struct Row {
    SquareSet squares = 0;
    std::uint64_t rest = 0;  // the size, and in the lowest bits the root
  };

  static std::uint64_t Root(const Subtree& subtree) {
    return static_cast<std::uint64_t>(subtree.knight) << 1 | (subtree.closing ? 1U : 0U);
  }

  static std::size_t RowOf(const Subtree& subtree) {
    constexpr std::uint64_t goldenRatio = 0x9e3779b97f4a7c15U;
    return std::rotl(subtree.squares, subtree.knight) * goldenRatio >> (64 - RowBits);
  }

  std::vector<Row> rows_;
};
