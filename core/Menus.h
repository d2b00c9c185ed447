#pragma once

#include "core/GameWindow.h"

// What happened to the game, as far as the menu has to know: for each there is a set of entries
// that is switched on or off, in a fixed order.
enum class MenuChange {
  FreshGame,             // a game as New and Restart leave it
  FirstSquareTaken,      // a square, when no other is taken
  MoveMade,              // any further one
  FinishedGame,          // no move is left: it can only be saved and seen as a replay
  AutoplayEnded,         // the same, as autoplay leaves it
  GameGoesOn,            // a command that made moves by itself has ended before the game did
  UnfinishedGameOpened,  // a game file
  PlayersSquareUndone,   // the first square, which the player had picked
  BackOnPlayersSquare,   // an undo that left no other square than that
  MoveUndone,            // any other undo
  BackOnFixedSquare,     // in addition, when the only square left is not the player's to undo
  NothingToRedo,
};

void SwitchMenus(GameWindow& window, MenuChange change);
