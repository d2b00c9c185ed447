#include "solver/TourSearch.h"

#include <algorithm>
#include <bit>

#include "solver/TourTables.h"

using TourTables::Of;

inline std::size_t TourSearch::Squares::TakeNext() {
  if (down != 0) {
    const auto next = static_cast<std::size_t>(std::countr_zero(down));
    down &= down - 1;
    return next;
  }
  const auto next = static_cast<std::size_t>(std::countr_zero(up));
  up &= up - 1;
  return Of.downOfUp[next];
}

inline void TourSearch::Squares::Toggle(std::size_t square) {
  down ^= std::uint64_t{1} << square;
  up ^= Of.upBit[square];
}

inline TourSearch::Squares TourSearch::CandidatesFrom(std::size_t square, const Squares& visited) {
  return {Of.down[square] & ~visited.down, Of.up[square] & ~visited.up};
}

TourSearch::TourSearch(const GameState& game)
    : start_(game.MoveCount), depth_(game.MoveCount), deepest_(game.MoveCount) {
  for (std::size_t i = 0; i < static_cast<std::size_t>(depth_); ++i) {
    const int index = SquareIndex(game.MoveList[i].x, game.MoveList[i].y);
    path_[i] = Of.downLabel[static_cast<std::size_t>(index)];
  }
  for (int index = 0; index < SquareCount; ++index) {
    if (game.Cell(ColumnOf(index), RowOf(index)) == GameState::Unvisited) continue;
    visited_.Toggle(Of.downLabel[static_cast<std::size_t>(index)]);
  }
}

MoveRow TourSearch::Move(int i) const {
  const int index = Of.index[path_[static_cast<std::size_t>(i)]];
  return {static_cast<std::int16_t>(ColumnOf(index)), static_cast<std::int16_t>(RowOf(index))};
}

TourSearch::Outcome TourSearch::Run(std::int64_t entries) {
  if (entered_) return Walk(entries);
  entered_ = true;
  ++entries_;
  if (depth_ == SquareCount) return Outcome::Solved;
  const auto start = static_cast<std::size_t>(start_);
  candidates_[start] = CandidatesFrom(path_[start - 1], visited_);
  return entries == 1 ? Outcome::Paused : Walk(entries - 1);
}

// One turn takes one candidate, or one step back when there is none left. A candidate from which no
// move leads on costs an entry and nothing else, unless the search pauses on it. What changes in
// every turn is held in locals, that is in registers.
TourSearch::Outcome TourSearch::Walk(std::int64_t entries) {
  std::int64_t left = entries;
  Squares visited = visited_;
  auto depth = static_cast<std::size_t>(depth_);
  auto deepest = static_cast<std::size_t>(deepest_);
  const auto start = static_cast<std::size_t>(start_);
  Squares here = candidates_[depth];
  Outcome outcome = Outcome::Exhausted;

  for (;;) {
    if (here.Empty()) {
      if (depth == start) break;
      --depth;
      visited.Toggle(path_[depth]);
      here = candidates_[depth];
      continue;
    }
    const std::size_t next = here.TakeNext();
    const Squares beyond = CandidatesFrom(next, visited);
    path_[depth] = static_cast<std::uint8_t>(next);
    --left;
    deepest = std::max(deepest, depth + 1);
    if (beyond.Empty() && left != 0 && depth + 1 != SquareCount) continue;

    candidates_[depth] = here;
    visited.Toggle(next);
    here = beyond;
    ++depth;
    if (depth == SquareCount || left == 0) {
      outcome = depth == SquareCount ? Outcome::Solved : Outcome::Paused;
      break;
    }
  }

  visited_ = visited;
  depth_ = static_cast<int>(depth);
  deepest_ = static_cast<int>(deepest);
  candidates_[depth] = here;
  entries_ += entries - left;
  return outcome;
}

TourSearch::Outcome TourSearch::Unwind() {
  for (;;) {
    const auto depth = static_cast<std::size_t>(depth_);
    while (!candidates_[depth].Empty()) {
      if (depth_ + 1 == SquareCount) return Walk(1);
      path_[depth] = static_cast<std::uint8_t>(candidates_[depth].TakeNext());
      deepest_ = std::max(deepest_, depth_ + 1);
      ++entries_;
    }
    if (depth_ == start_) return Outcome::Exhausted;
    --depth_;
    visited_.Toggle(path_[static_cast<std::size_t>(depth_)]);
  }
}
