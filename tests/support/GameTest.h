#pragma once

#include <string>
#include <string_view>

#include "core/Game.h"
#include "tests/support/Games.h"
#include "tests/support/RecordingWindow.h"

inline constexpr FirstSquare StartOnStoredSquare = FirstSquare::Stored;
inline constexpr FirstSquare StartOnPlayersChoice = FirstSquare::PlayersChoice;
inline constexpr FirstSquare StartOnRandomSquare = FirstSquare::Random;

// A game with a recording window around it.
class GameTest : public testing::Test {
 protected:
  // Starts the program and forgets the steps that it took; the first square is A8 unless a test
  // says otherwise.
  void Begin(FirstSquare startingPosition = StartOnStoredSquare);
  // The steps written down since the last call.
  Steps TakeLog();

  void ClickOn(std::string_view square) { game.pctGrid_Click(IndexOf(square)); }
  void TakeBack(int times = 1);
  void MakeAgain(int times = 1);
  // The pointer moves onto a square.
  void PointAt(std::string_view square) { game.pctGrid_MouseMove(IndexOf(square), 0); }

  std::string Knight() const { return SquareName(state.KnightX, state.KnightY); }
  // The square of the cursor, "none" when there is none.
  std::string Cursor() const;
  bool IsOn(MenuEntry entry) const { return window.IsMenuEnabled(entry); }
  bool IsTaken(std::string_view square) const;
  int SquaresTaken() const;

  GameState state;
  GameOptions options;
  RecordingWindow window;
  Game game{state, options, window};
};
