#pragma once

#include <cstdint>

#include "core/Game.h"

// The counters and the flag of a search; a new search begins with a new one.
struct SolverState {
  std::int64_t PositionsTested = 0;      // entries: one for the start, one for every square tried
  std::int16_t SolveRefreshCounter = 0;  // entries since the board was last redrawn
  bool StopSolving = false;              // set while the search yields, to have it unwind
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

// Everything outlives the search. The rate may change while it yields; the board is redrawn when
// SolveRefreshCounter exceeds it, that is on every (rate + 1)-th entry.
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
