#include "solver/TourSearch.h"

#include <bit>

TourSearch::TourSearch(const GameState& game)
    : start_(&levels_[static_cast<std::size_t>(game.MoveCount)]), level_(start_) {
  for (std::size_t i = 0; i < static_cast<std::size_t>(game.MoveCount); ++i) {
    levels_[i + 1].subtree.knight = SquareIndex(game.MoveList[i].x, game.MoveList[i].y);
  }
  SquareSet free = 0;
  for (int index = 0; index < SquareCount; ++index) {
    if (game.Cell(ColumnOf(index), RowOf(index)) == GameState::Unvisited) free |= OneSquare(index);
  }
  // The list of a game from a file may name squares twice and be full before the board is. How far
  // the search gets from a square then depends on more than the squares within reach.
  folding_ = std::popcount(free) == SquareCount - game.MoveCount;
  const int knight = start_->subtree.knight;
  Stand(start_, {free | OneSquare(knight), knight, folding_},
        KnightTargets[static_cast<std::size_t>(knight)] & free);
  // The knight's own square is free when the file named it twice and one of the two was undone.
  start_->within = free;
}

MoveRow TourSearch::Move(int i) const {
  const int index = levels_[static_cast<std::size_t>(i) + 1].subtree.knight;
  return {static_cast<std::int16_t>(ColumnOf(index)), static_cast<std::int16_t>(RowOf(index))};
}

inline void TourSearch::Level::Enter(const Subtree& newSubtree, SquareSet newTargets) {
  subtree = newSubtree;
  within = newSubtree.squares & ~OneSquare(newSubtree.knight);
  targets = newTargets;
  part = 0;
  tries = TriesTo(newSubtree.knight, newTargets);
}

inline int TourSearch::Level::TakeTry() {
  const int target = NextTarget(subtree.knight, tries);
  tries &= tries - 1;
  return target;
}

// `onward` is what a move leads to from the target. Without the square of this level, what is
// within reach may fall into parts that no move connects. Every part holds one of the targets, so
// that a part with all of them is the whole.
inline Subtree TourSearch::Level::SubtreeAt(int target, SquareSet onward) {
  const SquareSet square = OneSquare(target);
  if ((part & square) == 0) {
    part = HasTwo(targets) ? Reachable(square | onward, targets, within) : within;
  }
  return {part, target, subtree.closing && part == within};
}

// A full list of moves ends the way.
inline void TourSearch::Stand(Level* level, const Subtree& subtree, SquareSet targets) {
  level_ = level;
  level_->Enter(subtree, targets);
  if (level_ == &levels_[SquareCount]) level_->tries = 0;
}

inline void TourSearch::Leave() {
  if (folding_) sizes_.Keep(level_->subtree, entries_ - level_->entriesBefore);
  --level_;
}

// Makes the entries of a subtree that need not be walked, because the search does not pause in it.
inline bool TourSearch::Skip(std::int64_t entries) {
  if (entries >= pauseAt_ - entries_) return false;
  entries_ += entries;
  return true;
}

inline void TourSearch::Try() {
  const int target = level_->TakeTry();
  const SquareSet onward = KnightTargets[static_cast<std::size_t>(target)] & level_->within;
  Level* const next = level_ + 1;
  next->subtree.knight = target;
  if (onward == 0 && next != &levels_[SquareCount] && Skip(1)) return;

  const Subtree subtree = level_->SubtreeAt(target, onward);
  if (folding_ && Skip(sizes_.Find(subtree))) return;

  Stand(next, subtree, onward);
  level_->entriesBefore = entries_;
  ++entries_;
}

// With a square still free beside the knight a full list of moves is no tour.
inline bool TourSearch::IsTour() const {
  return level_ == &levels_[SquareCount] && level_->targets == 0;
}

TourSearch::Outcome TourSearch::Run(std::int64_t entries) {
  pauseAt_ = entries_ + entries;
  if (entries_ == 0) {
    ++entries_;
    if (IsTour()) return Outcome::Solved;
  }
  while (entries_ != pauseAt_) {
    if (level_->tries != 0) {
      Try();
      if (IsTour()) return Outcome::Solved;
    } else if (level_ != start_) {
      Leave();
    } else {
      return Outcome::Exhausted;
    }
  }
  return Outcome::Paused;
}

TourSearch::Outcome TourSearch::Unwind() {
  for (;; --level_) {
    while (level_ == &levels_[SquareCount - 1] && level_->tries != 0) {
      if (Run(1) == Outcome::Solved) return Outcome::Solved;
    }
    for (; level_->tries != 0; ++entries_) level_[1].subtree.knight = level_->TakeTry();
    if (level_ == start_) return Outcome::Exhausted;
  }
}
