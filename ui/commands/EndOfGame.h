#pragma once

#include "ui/commands/CommandContext.h"

// Announces the end of the game and acts once on what the player decides: the score list, the
// replay, a new game, or taking the last move back. A tour of 64 moves that the player made alone
// is celebrated first.
void EndGame(const CommandContext& context, const GameOverReport& report);
