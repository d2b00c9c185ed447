#pragma once

#include <bit>
#include <cstdint>

#include "solver/SquareSet.h"
#include "solver/SubtreeSizes.h"

// One of the knight's next squares and what lies behind it. It is small, since the search writes
// and reads little else.
struct Way {
  SquareSet squares = 0;  // those that the knight can get to from there
  SquareSet squaresFromFork = 0;
  std::uint8_t square = 0;
  std::uint8_t fork = 0;    // the square on which the knight has a choice again or is stuck
  std::uint8_t forced = 0;  // moves from the one to the other
  bool closing = false;

  Subtree FromSquare() const { return {squares, square, closing}; }
  Subtree FromFork() const { return {squaresFromFork, fork, closing}; }

  // Makes it the way into this subtree.
  void LeadInto(const Subtree& subtree) {
    Subtree end = subtree;
    std::uint8_t moves = 0;
    for (SquareSet only = end.Targets(); !HasTwo(only) && only != 0; only = end.Targets()) {
      end.squares &= ~only;
      end.knight = std::countr_zero(only);
      ++moves;
    }
    squares = subtree.squares;
    squaresFromFork = end.squares;
    square = static_cast<std::uint8_t>(subtree.knight);
    fork = static_cast<std::uint8_t>(end.knight);
    forced = moves;
    closing = subtree.closing;
  }
};

// The parts into which the squares fall that a knight can get to, as soon as it has left its own:
// no move connects them. Each holds one of its targets, so that a part with all of them is the
// whole.
class Parts {
 public:
  Parts(SquareSet squares, SquareSet targets)
      : first_(PartWith(targets, targets, squares)),
        others_(squares & ~first_),
        otherTargets_(targets & others_) {}

  // The part with this target.
  SquareSet With(SquareSet target) const {
    return (first_ & target) != 0 ? first_ : PartWith(target, otherTargets_, others_);
  }

 private:
  // The part with the first of the wanted targets.
  static SquareSet PartWith(SquareSet wanted, SquareSet targets, SquareSet squares) {
    if (!HasTwo(targets)) return squares;
    const int target = std::countr_zero(wanted);
    const SquareSet onward = KnightTargets[static_cast<std::size_t>(target)] & squares;
    return Reachable(OneSquare(target) | onward, targets, squares);
  }

  SquareSet first_;
  SquareSet others_;
  SquareSet otherTargets_;
};
