#pragma once

#include <string>
#include <vector>

#include "ui/commands/CommandContext.h"

// All that can be undone and redone, from the oldest move to undo down to the last one to redo.
struct CommandList {
  std::vector<std::string> rows;
  int noChange = 0;  // the row that stands between the two
};

CommandList CommandsOf(const GameState& state);

// Undoes (steps below 0) or redoes so many moves; the board is seen stepping. Ends early when a
// step has ended the game, or when what the player decided then has replaced or changed it.
void StepThroughCommands(const CommandContext& context, int steps);

void mnuEditHistory_Click(const CommandContext& context);
