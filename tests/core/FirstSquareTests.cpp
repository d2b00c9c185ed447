#include <algorithm>
#include <set>

#include "tests/support/GameTest.h"

using TheFirstSquare = GameTest;

TEST_F(TheFirstSquare, IsTheStoredSquare) {
  options.StartingX = 3;
  options.StartingY = 5;
  Begin();
  EXPECT_EQ(Knight(), "D3");
  EXPECT_EQ(Cursor(), "D3");
  EXPECT_TRUE(IsTaken("D3"));
  EXPECT_EQ(MovesMade(state), SquaresNamed("D3"));
}

TEST_F(TheFirstSquare, CountsAStoredCoordinateBesideTheBoardAsZero) {
  options.StartingX = 8;
  options.StartingY = 5;
  Begin();
  EXPECT_EQ(Knight(), "A3");
  options.StartingX = 3;
  options.StartingY = -1;
  game.StartNewGame();
  EXPECT_EQ(Knight(), "D8");
  options.StartingX = 32767;
  options.StartingY = -32768;
  game.StartNewGame();
  EXPECT_EQ(Knight(), "A8");
}

TEST_F(TheFirstSquare, IsLeftToThePlayer) {
  Begin(StartOnPlayersChoice);
  EXPECT_EQ(state.MoveCount, 0);
  EXPECT_EQ(Cursor(), "none");
}

TEST_F(TheFirstSquare, LeavesTheKnightInTheCornerUntilThePlayerHasPickedIt) {
  Begin();
  PlayTour(game, 5);
  options.StartingPosition = StartOnPlayersChoice;
  game.StartNewGame();
  EXPECT_EQ(Knight(), "A8");
  EXPECT_FALSE(IsTaken("A8"));
}

TEST_F(TheFirstSquare, MayBeAnySquareWhenItIsRandom) {
  Begin(StartOnRandomSquare);
  std::set<std::string> seen;
  for (int games = 0; games < 20000 && seen.size() < 64; ++games) {
    game.StartNewGame();
    ASSERT_EQ(SquaresTaken(), 1);
    ASSERT_TRUE(IsTaken(Knight()));
    seen.insert(Knight());
  }
  EXPECT_EQ(seen.size(), 64U);
}

TEST_F(TheFirstSquare, IsRandomForAnySettingThatMeansNothingElse) {
  for (const std::int16_t position : {std::int16_t{3}, std::int16_t{-1}, std::int16_t{32767}}) {
    Begin(static_cast<FirstSquare>(position));
    EXPECT_EQ(state.MoveCount, 1) << position;
    EXPECT_TRUE(state.FirstMoveMade) << position;
  }
}

TEST_F(TheFirstSquare, PlacedAutomaticallyEnablesUndoUntilTheNewGameIsReady) {
  Begin();
  window.onRestoreColors = [this] { EXPECT_TRUE(IsOn(MenuEntry::mnuEditUndo)); };
  game.mnuFileNew_Click();
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditUndo));
}

TEST_F(TheFirstSquare, RefreshesTheHighlightWhenItIsPlaced) {
  options.StartingX = 1;
  Begin();
  game.SetupFirstMove();
  EXPECT_EQ(TakeLog().back(), "HighlightSquare 8");
}
