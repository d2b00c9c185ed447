// What the firework takes from a core: a pass, drawn and painted, comes 25 times a second.

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "ui/windows/animations/frmWin.h"
#include "ui/windows/game/frmGame.h"

namespace {

void PassOfTheFirework(benchmark::State& measured) {
  const QTemporaryDir directory;
  Globals globals;
  globals.ProgramDirectory = directory.path() + "/";
  frmGame window(globals);
  window.Form_Load("");
  frmWin win(true, &window);
  win.show();
  for (auto _ : measured) {
    win.tmrDraw_Timer();
    win.repaint();
  }
}
BENCHMARK(PassOfTheFirework)->Unit(benchmark::kMicrosecond);

void OpeningOfTheFirework(benchmark::State& measured) {
  const QTemporaryDir directory;
  Globals globals;
  globals.ProgramDirectory = directory.path() + "/";
  frmGame window(globals);
  window.Form_Load("");
  for (auto _ : measured) {
    const frmWin win(true, &window);
    benchmark::DoNotOptimize(&win);
  }
}
BENCHMARK(OpeningOfTheFirework)->Unit(benchmark::kMillisecond);

}  // namespace
