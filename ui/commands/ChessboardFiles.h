#pragma once

#include "ui/commands/CommandContext.h"

// Takes the look of the board from a file that the player chooses, and keeps it. A file that cannot
// be read gives the default look.
void mnuEditChessboardOpen_Click(const CommandContext& context);

// Saves the look of the board under a name that the player chooses.
void mnuEditChessboardSave_Click(const CommandContext& context);
