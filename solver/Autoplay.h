#pragma once

#include "core/Game.h"

// Walks on at random from where the knight stands until no move is left, one move a yield. The game
// may not be scored any more. A request to close the window ends the walk early.
void mnuFileAutoplay_Click(Game& game, GameState& state, GameWindow& window, Random& random);
