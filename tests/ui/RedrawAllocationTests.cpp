// Counts what is asked of the heap, by the toolkit as well, at a redraw of a search at which
// nothing has changed; in a program of its own, since the count is everybody's.

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

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

int AllocatedAtRedraws(frmGame& window, frmSolve& solve) {
  const int before = allocations;
  for (int redraw = 0; redraw < Redraws; ++redraw) {
    window.RestoreColors();
    solve.ShowProgress();
    window.DoEvents();
  }
  return allocations - before;
}

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

TEST(RedrawAllocation, NothingIsAllocatedWhenNothingHasChanged) {
  if (!HeapCanBeCounted) GTEST_SKIP();
  const QTemporaryDir directory;
  Globals globals;
  globals.ProgramDirectory = directory.path() + "/";
  frmGame window(globals);
  window.Form_Load("");
  globals.settings.ShowSolveWarnings = false;
  int allocated = -1;
  QTimer::singleShot(0, &window, [&] {
    auto& solve = dynamic_cast<frmSolve&>(*QApplication::activeModalWidget());
    window.EnableClock(false);
    AllocatedAtRedraws(window, solve);  // the windows come onto the screen
    allocated = AllocatedAtRedraws(window, solve);
    solve.close();
  });
  mnuFileSolve_Click(window.Context());
  EXPECT_EQ(allocated, 0);
  EXPECT_GT(allocations, 0);
}
