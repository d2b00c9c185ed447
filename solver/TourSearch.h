#pragma once

#include <array>
#include <cstdint>

#include "core/GameState.h"

// The bare search for a tour: depth first, in the order of TourMoveOffsets, exhaustive. It works on
// bits of its own and can be paused after any number of entries.
//
// An entry is made for the square that the search begins on and for every square that it tries. The
// square of the last entry is the one that the knight stands on while the search is paused.
class TourSearch {
 public:
  enum class Outcome {
    Paused,     // the entries asked for are made
    Solved,     // the moves visit all 64 squares
    Exhausted,  // all that can be tried has been tried
  };

  // Goes on from the moves made in this game, at least one; the squares visited are those of its
  // board. The entry for the square that the knight stands on is still to be made.
  explicit TourSearch(const GameState& game);

  // Makes so many more entries, at least one, unless the search ends before.
  Outcome Run(std::int64_t entries);

  // Ends a paused search in the way in which a stop does: every square that was still to be tried
  // on the way back is entered once and left at once. A complete tour is taken all the same.
  Outcome Unwind();

  std::int64_t Entries() const { return entries_; }
  int MoveCount() const { return depth_; }
  // The square of move number i; behind MoveCount, the square that was tried there last.
  MoveRow Move(int i) const;
  // Move(i) is known for every i below: the most moves that were made at once.
  int DeepestMove() const { return deepest_; }

 private:
  // A set of squares in both labellings: one for candidates further down the board, which are tried
  // first, and one for those further up. In each the next candidate is the lowest bit.
  struct Squares {
    std::uint64_t down = 0;
    std::uint64_t up = 0;

    bool Empty() const { return (down | up) == 0; }
    // Of a set that is not empty.
    std::size_t TakeNext();
    void Toggle(std::size_t square);
  };

  static Squares CandidatesFrom(std::size_t square, const Squares& visited);
  Outcome Walk(std::int64_t entries);

  Squares visited_;
  int start_ = 0;  // moves that the search may not take back
  int depth_ = 0;  // moves made
  int deepest_ = 0;
  bool entered_ = false;
  std::int64_t entries_ = 0;
  std::array<std::uint8_t, SquareCount + 1> path_{};   // by move number
  std::array<Squares, SquareCount + 1> candidates_{};  // what is still to be tried as that move
};
