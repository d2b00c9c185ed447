#pragma once

#include <cstdint>

#include "core/Game.h"

// The count and the flag of a search; a new search begins with a new one. Entries since the last
// redraw are not counted: whenever anybody can look, there are none.
struct SolverState {
  std::int64_t PositionsTested = 0;  // entries: one for the start, one for every square tried
  bool StopSolving = false;          // set while the search yields, to have it unwind
};

// Whoever shows how the search goes.
class SolveProgress {
 public:
  SolveProgress() = default;
  SolveProgress(const SolveProgress&) = delete;
  SolveProgress& operator=(const SolveProgress&) = delete;
  virtual ~SolveProgress() = default;

  // The game is at the position last tried; called before events run.
  virtual void ShowProgress() = 0;
};

// Everything outlives the search. The board is redrawn on every (SolveRefreshRate + 1)-th entry;
// the rate, 0 or more, may change while the search yields.
struct SolveTask {
  Game& game;
  GameState& state;
  GameWindow& window;
  SolverState& solver;
  const std::int16_t& SolveRefreshRate;
  SolveProgress& progress;
};

// Finishes the tour from where the knight stands, trying every square in the fixed order until 64
// are visited. True: the live game holds the tour. False: there is none, or the search was stopped;
// the game is then where it was. Moves that could be redone are lost: what the list holds behind
// the moves made is for the caller to clear.
//
// The caller has set SolverRunning and ApplyingMoves; the game has its first square.
bool SolveTheGameNoRefresh(const SolveTask& task);
