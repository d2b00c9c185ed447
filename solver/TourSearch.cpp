#include "solver/TourSearch.h"

#include <bit>

#include "solver/TourOrder.h"

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
  // the search gets from a square then depends on more than the squares within reach. The knight's
  // own square is free when the file named it twice and one of the two was undone.
  folding_ = std::popcount(free) == SquareCount - game.MoveCount;
  const int knight = start_->subtree.knight;
  const SquareSet targets = KnightTargets[static_cast<std::size_t>(knight)] & free;
  const SquareSet squares = Reachable(targets, free, free);
  Stand(start_, {squares, knight, squares == free});
}

MoveRow TourSearch::Move(int i) const {
  const int index = levels_[static_cast<std::size_t>(i) + 1].subtree.knight;
  return {static_cast<std::int16_t>(ColumnOf(index)), static_cast<std::int16_t>(RowOf(index))};
}

int TourSearch::MovesStandingSince(std::int64_t entries) const {
  const Level* level = level_;
  while (level != start_ && level->entriesBefore >= entries) --level;
  return static_cast<int>(level - levels_.data());
}

// A full list of moves ends the way, whatever is free around it.
inline void TourSearch::Stand(Level* level, const Subtree& subtree) {
  level_ = level;
  level->subtree = subtree;
  level->wayCount = level->waysTried = 0;
  if (level == &levels_[SquareCount]) return;

  const SquareSet targets = subtree.Targets();
  const Parts parts(subtree.squares, targets);
  std::size_t count = 0;
  for (Tries tries = TriesTo(subtree.knight, targets); tries != 0; tries &= tries - 1) {
    const int target = NextTarget(subtree.knight, tries);
    const SquareSet part = parts.With(OneSquare(target));
    const bool closing = subtree.closing && part == subtree.squares;
    Way& way = level->ways[count++];
    way.LeadInto({part & ~OneSquare(target), target, closing});
    sizes_.Fetch(way.FromFork());
  }
  level->wayCount = count;
}

inline void TourSearch::Leave() {
  if (folding_ && level_->wayCount > 1) {
    sizes_.Keep(level_->subtree, entries_ - level_->entriesBefore);
  }
  --level_;
}

// A way without a choice is a tour when no other square is free.
inline std::int64_t TourSearch::SizeOf(const Way& way) const {
  if (way.squaresFromFork != 0) return way.forced + sizes_.Find(way.FromFork());
  return way.closing ? SubtreeSizes::Unknown : way.forced + 1;
}

// Makes the entries of a subtree that need not be walked, because the search does not pause in it.
inline bool TourSearch::Skip(std::int64_t entries) {
  if (!folding_ || entries >= pauseAt_ - entries_) return false;
  entries_ += entries;
  return true;
}

inline void TourSearch::Try() {
  const Way& way = level_->TakeWay();
  Level* const next = level_ + 1;
  next->subtree.knight = way.square;
  if (Skip(SizeOf(way))) return;

  Stand(next, way.FromSquare());
  next->entriesBefore = entries_;
  ++entries_;
}

// With a square still free beside the knight a full list of moves is no tour.
inline bool TourSearch::IsTour() const {
  return level_ == &levels_[SquareCount] && level_->subtree.Targets() == 0;
}

TourSearch::Outcome TourSearch::Run(std::int64_t entries) {
  pauseAt_ = entries_ + entries;
  if (entries_ == 0) {
    ++entries_;
    if (IsTour()) return Outcome::Solved;
  }
  while (entries_ != pauseAt_) {
    if (level_->HasWaysLeft()) {
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
    while (level_ == &levels_[SquareCount - 1] && level_->HasWaysLeft()) {
      if (Run(1) == Outcome::Solved) return Outcome::Solved;
    }
    for (; level_->HasWaysLeft(); ++entries_) level_[1].subtree.knight = level_->TakeWay().square;
    if (level_ == start_) return Outcome::Exhausted;
  }
}
