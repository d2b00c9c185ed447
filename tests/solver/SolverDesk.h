#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/Game.h"
#include "solver/TourSolver.h"
#include "tests/support/GameTest.h"

// Where a search begins: these moves made, the last of them undone. With the player's choice as the
// starting position the first square is one that can be taken back.
struct SolverPosition {
  std::vector<MoveRow> moves;
  FirstSquare startingPosition = StartOnStoredSquare;
  int undos = 0;
};

// A game on which a search can be run, as the Solve window runs it.
class SolverDesk : private SolveProgress {
 public:
  using Search = bool (*)(const SolveTask&);

  // Starts the program and brings the game there.
  void BeginWith(const SolverPosition& position);
  bool Solve(Search search = SolveTheGameNoRefresh);
  void ClearLog() { window.log.clear(); }

  GameState state;
  GameOptions options;
  RecordingWindow window;
  Game game{state, options, window};
  SolverState solver;
  std::int16_t refreshRate = 1000;
  // What the labels showed at every redraw, as "move/tested/square". The last redraw of a search
  // that found its tour is the tour itself.
  std::vector<std::string> redraws;
  // What happens while the search yields.
  std::function<void()> onRedraw;

 private:
  void ShowProgress() override;
};

// All that a game and its window show besides the moves to redo.
std::string Sight(const SolverDesk& desk);
