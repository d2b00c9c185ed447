#pragma once

#include "ui/commands/CommandContext.h"

// Shows the Solve window over the live game; a game without a first square is given a random one.
// Before a search that may take very long the player is asked, unless he wants no such questions.
void mnuFileSolve_Click(const CommandContext& context);
