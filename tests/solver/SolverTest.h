#pragma once

#include <functional>

#include <gtest/gtest.h>

#include "solver/TourSolver.h"
#include "tests/support/GameTest.h"

// What the solver showed at one redraw: "move/tested/square".
std::string ProgressText(const GameState& state, const SolverState& solver);

// A game on which a search can be run, as the Solve window runs it.
class SolverTest : public testing::Test, protected SolveProgress {
 protected:
  // Starts the program on these squares.
  void BeginWith(const std::vector<MoveRow>& moves);
  bool Solve();

  GameState state;
  GameOptions options;
  RecordingWindow window;
  Game game{state, options, window};
  SolverState solver;
  std::int16_t refreshRate = 1000;
  // Every redraw, in order; the last one of a search that found its tour is the tour itself.
  std::vector<std::string> redraws;
  // What happens while the search yields.
  std::function<void()> onRedraw;

 private:
  void ShowProgress() override;
};
