// What the player waits for on the board: redraws and the opening of a game.

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <benchmark/benchmark.h>

#include "core/Square.h"
#include "ui/board/BoardModel.h"
#include "ui/board/BoardView.h"
#include "ui/windows/game/frmGame.h"

namespace {

void RedrawOfAnUnchangedBoard(benchmark::State& measured) {
  GameState state;
  state.FirstMoveMade = true;
  state.Cell(0, 0) = GameState::Visited;
  const BoardLook look;
  BoardModel model;
  model.RestoreColors(state, look, -1, -1);
  for (auto _ : measured) {
    model.RestoreColors(state, look, -1, -1);
    benchmark::DoNotOptimize(model.TakeChanges());
  }
}
BENCHMARK(RedrawOfAnUnchangedBoard);

void RedrawOfAMove(benchmark::State& measured) {
  GameState state;
  state.FirstMoveMade = true;
  const BoardLook look;
  BoardModel model;
  for (auto _ : measured) {
    state.Cell(state.KnightX, state.KnightY) = GameState::Unvisited;
    state.KnightX = state.KnightX == 0 ? std::int16_t{2} : std::int16_t{0};
    state.Cell(state.KnightX, state.KnightY) = GameState::Visited;
    model.RestoreColors(state, look, -1, -1);
    benchmark::DoNotOptimize(model.TakeChanges());
  }
}
BENCHMARK(RedrawOfAMove);

// A finished game of 64 moves, from the command to the board: each move is painted on the way. The
// question at its end is answered by closing it.
void OpeningAGameOf64Moves(benchmark::State& measured) {
  const QTemporaryDir directory;
  Globals globals;
  globals.ProgramDirectory = directory.path() + "/";
  frmGame window(globals);
  window.Form_Load("");
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [] {
    if (QWidget* question = QApplication::activeModalWidget()) question->close();
  });
  closer.start(0);
  for (auto _ : measured) window.OpenGameFile(TEST_DATA_DIRECTORY "beverley-1848.knight");
}
BENCHMARK(OpeningAGameOf64Moves)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argumentCount, char* arguments[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argumentCount, arguments);
  benchmark::Initialize(&argumentCount, arguments);
  benchmark::RunSpecifiedBenchmarks();
}
