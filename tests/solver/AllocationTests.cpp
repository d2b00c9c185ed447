// Counts what the search asks of the heap; in a program of its own, since the count is everybody's.

#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

#include "core/Game.h"
#include "solver/TourSearch.h"
#include "solver/TourSolver.h"

namespace {

int allocations = 0;

void* Allocate(std::size_t size) {
  ++allocations;
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}

// Shows nothing, keeps nothing.
class QuietWindow : public GameWindow {
 public:
  void SetMenuEnabled(MenuEntry, bool) override {}
  bool IsMenuEnabled(MenuEntry) const override { return true; }
  void SetMenuChecked(MenuEntry, bool) override {}
  void RestoreColors() override {}
  void HighlightSquare(int, bool) override {}
  void SetCaption(const std::string&) override {}
  void EnableClock(bool) override {}
  bool IsClockEnabled() const override { return false; }
  bool Ask(const std::string&, const std::string&, DefaultAnswer) override { return false; }
  void Tell(const std::string&, const std::string&, MessageIcon) override {}
  void EndGame(const GameOverReport&) override {}
  void DoEvents() override {}
  WorkGuard& Guard() override { return guard_; }

 private:
  WorkGuard guard_{[](WorkGuard::Change) {}};
};

// Stops the search after many redraws; what was allocated between the first and the last.
class CountingProgress : public SolveProgress {
 public:
  explicit CountingProgress(SolverState& solver) : solver_(solver) {}

  int Redraws() const { return redraws_; }
  int Allocated() const { return atLast_ - atFirst_; }

  void ShowProgress() override {
    if (++redraws_ == 1) atFirst_ = allocations;
    atLast_ = allocations;
    solver_.StopSolving = redraws_ == 1000;
  }

 private:
  SolverState& solver_;
  int redraws_ = 0;
  int atFirst_ = 0;
  int atLast_ = 0;
};

GameState CornerStart() {
  GameState game;
  game.Cell(0, 0) = GameState::Visited;
  game.MoveList[0] = {0, 0};
  game.MoveCount = 1;
  game.FirstMoveMade = true;
  game.ApplyingMoves = true;
  game.SolverRunning = true;
  return game;
}

}  // namespace

void* operator new(std::size_t size) {
  return Allocate(size);
}
void* operator new[](std::size_t size) {
  return Allocate(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

TEST(AllocationTest, TheSearchAllocatesNothingWhileItRuns) {
  TourSearch search(CornerStart());
  const int before = allocations;
  for (int pause = 0; pause < 100; ++pause) search.Run(32'001);
  search.Unwind();
  EXPECT_EQ(allocations, before);
}

TEST(AllocationTest, TheSolverAllocatesNothingAtItsRedraws) {
  GameState state = CornerStart();
  GameOptions options;
  QuietWindow window;
  Game game(state, options, window);
  SolverState solver;
  const std::int16_t rate = 100;
  CountingProgress progress(solver);
  SolveTheGameNoRefresh({game, state, window, solver, rate, progress});
  EXPECT_EQ(progress.Redraws(), 1000);
  EXPECT_EQ(progress.Allocated(), 0);
}
