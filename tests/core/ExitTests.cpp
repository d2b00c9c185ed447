#include "tests/support/GameTest.h"

namespace {

const std::string Question =
    "ask Exit?|Your current game is not finished. Do you really want to exit?";

}  // namespace

using Exit = GameTest;
using GameInProgress = GameTest;

TEST_F(Exit, AsksNothingWithoutAGameInProgress) {
  Begin();
  EXPECT_TRUE(game.Form_Unload());
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Exit, AsksNothingAfterTheEndOfAGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  window.log.clear();
  EXPECT_TRUE(game.Form_Unload());
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Exit, AsksBeforeItLeavesAGameInProgress) {
  Begin();
  ClickOn("C7");
  window.log.clear();
  window.answers = {PlayerSays::Yes};
  EXPECT_TRUE(game.Form_Unload());
  EXPECT_EQ(TakeLog(), (Steps{"clock off", Question}));
}

TEST_F(Exit, LetsThePlayerStay) {
  Begin();
  ClickOn("C7");
  window.log.clear();
  window.answers = {PlayerSays::No};
  EXPECT_FALSE(game.Form_Unload());
  EXPECT_EQ(TakeLog(), (Steps{"clock off", Question, "clock on"}));
}

TEST_F(Exit, LeavesAStoppedClockStoppedWhenThePlayerStays) {
  Begin();
  ClickOn("C7");
  window.EnableClock(false);
  window.answers = {PlayerSays::No};
  EXPECT_FALSE(game.Form_Unload());
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(GameInProgress, BeginsWithTheSecondSquareAfterAnAutomaticFirstOne) {
  for (const FirstSquare position : {StartOnStoredSquare, StartOnRandomSquare}) {
    Begin(position);
    EXPECT_FALSE(game.GameInProgress());
  }
  Begin();
  ClickOn("C7");
  EXPECT_TRUE(game.GameInProgress());
}

TEST_F(GameInProgress, BeginsWithTheSquareThatThePlayerPicks) {
  Begin(StartOnPlayersChoice);
  EXPECT_FALSE(game.GameInProgress());
  ClickOn("E4");
  EXPECT_TRUE(game.GameInProgress());
  TakeBack();
  EXPECT_FALSE(game.GameInProgress());
}

TEST_F(GameInProgress, EndsWithTheGame) {
  Begin();
  PlayTour(game, 63);
  EXPECT_TRUE(game.GameInProgress());
  PlayTour(game, 64);
  EXPECT_FALSE(game.GameInProgress());
  TakeBack();
  EXPECT_TRUE(game.GameInProgress());
}
