#pragma once

#include "ui/commands/CommandContext.h"

// Rewinds the live game to its first square and shows the replay window over it. Afterwards the
// game goes on from the move last shown, with the rest of the moves to be redone.
void mnuViewReplay_Click(const CommandContext& context);
