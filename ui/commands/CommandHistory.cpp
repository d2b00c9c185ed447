#include "ui/commands/CommandHistory.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

// The player's first square can be undone, a first square set by the program cannot.
int FirstThatCanBeUndone(const GameState& state) {
  return state.GameStartingPosition == FirstSquare::PlayersChoice
             ? 0
             : std::min<int>(state.MoveCount, 1);
}

std::string Row(const char* command, const MoveRow& square) {
  return std::string(command) + "\t" + SquareName(square.x, square.y);
}

// False when the game is no longer the one that the step was meant for.
bool Step(const CommandContext& context, int direction) {
  const GameState& state = context.state;
  const std::uint32_t serial = state.GameSerial;
  const int expected = state.MoveCount + direction;
  if (direction < 0) {
    context.game.mnuEditUndo_Click();
    return state.MoveCount == expected;
  }
  context.game.mnuEditRedo_Click();
  return state.GameSerial == serial && state.MoveCount == expected &&
         !context.game.CheckIfGameOver(state.KnightX, state.KnightY);
}

}  // namespace

CommandList CommandsOf(const GameState& state) {
  CommandList list;
  for (int i = FirstThatCanBeUndone(state); i < state.MoveCount; ++i) {
    list.rows.push_back(Row("Undo", state.MoveList[static_cast<std::size_t>(i)]));
  }
  list.noChange = static_cast<int>(list.rows.size());
  list.rows.push_back("No Change");
  for (int i = state.MoveCount; i < SquareCount; ++i) {
    const MoveRow& square = state.MoveList[static_cast<std::size_t>(i)];
    if (square.x == EmptyMove.x) break;
    list.rows.push_back(Row("Redo", square));
  }
  return list;
}

void StepThroughCommands(const CommandContext& context, int steps) {
  const WorkScope work(context.window.Guard());
  const WatchedWork walk(context.pace, std::abs(steps));
  const int direction = steps < 0 ? -1 : 1;
  for (int left = std::abs(steps); left > 0; --left) {
    if (!Step(context, direction)) return;
    context.window.DoEvents();
  }
}

void mnuEditHistory_Click(const CommandContext& context) {
  const GameState& state = context.state;
  const std::uint32_t serial = state.GameSerial;
  context.window.EnableClock(false);
  context.windows.ShowCommandHistory();
  if (state.GameSerial != serial) return;  // a new game has set its own clock
  if (!context.game.CheckIfGameOver(state.KnightX, state.KnightY)) context.window.EnableClock(true);
}
