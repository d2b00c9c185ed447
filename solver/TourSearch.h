#pragma once

#include <array>
#include <cstdint>

#include "core/GameState.h"
#include "solver/SubtreeSizes.h"
#include "solver/Ways.h"

// The bare search for a tour: depth first, in the order of TourMoveOffsets, exhaustive. It works on
// bits of its own and can be paused after any number of entries.
//
// An entry is made for the square that the search begins on and for every square that it tries. The
// square of the last entry is the one that the knight stands on while the search is paused.
//
// Folding: what happens below a square depends only on the squares that can still be reached from
// there. The same few squares are reached in the same shape over and over, so the number of entries
// made below each of them is kept, and where it comes up again with enough entries still to be made
// before the next pause, it is added up instead of walked. Where the knight has no choice nothing
// is kept: such moves add one entry each to what is known of the square where it has one again. A
// pause always falls into a subtree that is walked, and so does a tour, since a subtree with a tour
// in it is never left.
class TourSearch {
 public:
  enum class Outcome {
    Paused,     // the entries asked for are made
    Solved,     // the moves visit all 64 squares
    Exhausted,  // all that can be tried has been tried
  };

  TourSearch(const TourSearch&) = delete;
  TourSearch& operator=(const TourSearch&) = delete;

  // Goes on from the moves made in this game, at least one; the squares visited are those of its
  // board. The entry for the square that the knight stands on is still to be made.
  explicit TourSearch(const GameState& game);

  // Makes so many more entries, at least one, unless the search ends before. Allocates nothing.
  Outcome Run(std::int64_t entries);

  // Ends a paused search in the way in which a stop does: every square that was still to be tried
  // on the way back is entered once and left at once. A complete tour is taken all the same.
  Outcome Unwind();

  std::int64_t Entries() const { return entries_; }
  int MoveCount() const { return static_cast<int>(level_ - levels_.data()); }
  // Some square was tried and left again.
  bool HasTakenBack() const { return entries_ > 1 + (level_ - start_); }
  // How many of its moves the search had made when it had made so many entries.
  int MovesStandingSince(std::int64_t entries) const;
  // The square of move number i below MoveCount; at MoveCount, the square that was tried there
  // last.
  MoveRow Move(int i) const;

 private:
  // The search at one of its moves.
  struct Level {
    Subtree subtree;  // from the square of this move on
    std::int64_t entriesBefore = 0;
    std::array<Way, 8> ways{};  // in the order of the tries
    std::size_t wayCount = 0;
    std::size_t waysTried = 0;

    bool HasWaysLeft() const { return waysTried != wayCount; }
    const Way& TakeWay() { return ways[waysTried++]; }
  };

  void Stand(Level* level, const Subtree& subtree);
  void Try();
  void Leave();
  std::int64_t SizeOf(const Way& way) const;
  bool Skip(std::int64_t entries);
  bool IsTour() const;

  // By the number of moves made; the level above the one where the search stands has the square
  // that was tried last.
  std::array<Level, SquareCount + 1> levels_{};
  Level* const start_;  // the search does not go back below it
  Level* level_;        // where it stands
  std::int64_t entries_ = 0;
  std::int64_t pauseAt_ = 0;
  bool folding_ = false;  // sizes are kept and used
  SubtreeSizes sizes_;
};
