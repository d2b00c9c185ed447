// Counts what is asked of the heap, by Qt as well, at a redraw of a search that is
// not painted; in a program of its own, since the count is everybody's.

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include "tests/ui/HandClock.h"
#include "ui/commands/Solve.h"
#include "ui/windows/frmSolve.h"
#include "ui/windows/game/frmGame.h"

#ifdef __SANITIZE_ADDRESS__
constexpr bool HeapCanBeCounted = false;  // it is the sanitizer's
#else
constexpr bool HeapCanBeCounted = true;

// The heap of the C library under its own names.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
}
// NOLINTEND(bugprone-reserved-identifier)
#endif

namespace {

int allocations = 0;

constexpr int Redraws = 100;

}  // namespace

#ifndef __SANITIZE_ADDRESS__
extern "C" {

void* malloc(std::size_t size) {
  ++allocations;
  return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
  ++allocations;
  return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size) {
  ++allocations;
  return __libc_realloc(memory, size);
}
}
#endif

namespace {

// The Solve window over a game of two squares, on a display that is busy as long as its clock
// stands.
class RedrawAllocation : public testing::Test {
 protected:
  // What is allocated at redraws after each of which this happens.
  int AllocatedAfter(const std::function<void(const CommandContext&)>& change) {
    const QTemporaryDir directory;
    Globals globals;
    globals.ProgramDirectory = directory.path() + "/";
    frmGame window(globals, clock_.Clock());
    window.Form_Load("");
    window.Context().game.ValidMove(1, 2);
    globals.settings.ShowSolveWarnings = false;
    int allocated = -1;
    QTimer::singleShot(0, &window, [&] {
      auto& solve = dynamic_cast<frmSolve&>(*QApplication::activeModalWidget());
      window.EnableClock(false);
      const auto redraw = [&] {
        change(window.Context());
        Redraw(window, solve);
      };
      for (int times = 0; times < Redraws; ++times) redraw();  // the windows come onto the screen
      const WatchedWork search(window.Context().pace);
      redraw();
      const int before = allocations;
      for (int times = 0; times < Redraws; ++times) redraw();
      allocated = allocations - before;
      solve.close();
    });
    mnuFileSolve_Click(window.Context());
    return allocated;
  }

 private:
  static void Redraw(frmGame& window, frmSolve& solve) {
    window.RestoreColors();
    solve.ShowProgress();
    window.DoEvents();
  }

  HandClock clock_;
};

void MoveOrTakeBack(const CommandContext& context) {
  context.state.SolverRunning = true;
  if (context.state.MoveCount == 2) {
    context.game.ValidMove(2, 4);
  } else {
    context.game.mnuEditUndo_Click();
  }
  context.state.SolverRunning = false;
}

}  // namespace

TEST_F(RedrawAllocation, NothingIsAllocatedWhenNothingHasChanged) {
  if (!HeapCanBeCounted) GTEST_SKIP();
  EXPECT_EQ(AllocatedAfter([](const CommandContext&) {}), 0);
  EXPECT_GT(allocations, 0);
}

TEST_F(RedrawAllocation, NothingIsAllocatedWhenThePictureIsHeldBack) {
  if (!HeapCanBeCounted) GTEST_SKIP();
  EXPECT_EQ(AllocatedAfter(MoveOrTakeBack), 0);
}
