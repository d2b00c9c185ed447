#include <limits>

#include "tests/support/GameTest.h"

namespace {

constexpr int NoButton = 0;
constexpr int Forced = -1;

}  // namespace

using Pointer = GameTest;

TEST_F(Pointer, MakesItsSquareTheCursor) {
  Begin();
  PointAt("E4");
  EXPECT_EQ(Cursor(), "E4");
  EXPECT_EQ(TakeLog(), Steps{"HighlightSquare 36"});
}

TEST_F(Pointer, ChangesNothingAfterTheEndOfTheGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  window.log.clear();
  PointAt("E4");
  EXPECT_EQ(Cursor(), "A1");
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Pointer, ChangesNothingWhileTheProgramMakesMoves) {
  Begin();
  state.ApplyingMoves = true;
  PointAt("E4");
  EXPECT_EQ(Cursor(), "A8");
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Pointer, IsFollowedAfterTheEndOfTheGameWhenForced) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  window.log.clear();
  game.pctGrid_MouseMove(IndexOf("E4"), Forced);
  EXPECT_EQ(Cursor(), "E4");
  EXPECT_EQ(TakeLog(), Steps{"HighlightSquare 36 forced"});
}

TEST_F(Pointer, IsFollowedWhileTheProgramMakesMovesWhenForced) {
  Begin();
  state.ApplyingMoves = true;
  game.pctGrid_MouseMove(IndexOf("E4"), Forced);
  EXPECT_EQ(Cursor(), "E4");
}

TEST_F(Pointer, IsIgnoredBesideTheBoard) {
  Begin();
  for (const int button : {NoButton, Forced}) {
    for (const int index :
         {-1, -9, 64, 72, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
      game.pctGrid_MouseMove(index, button);
      EXPECT_EQ(Cursor(), "A8") << index;
      EXPECT_EQ(TakeLog(), Steps{}) << index;
    }
  }
}

TEST_F(Pointer, ChoosesAmongAllSquaresBeforeTheFirstMove) {
  Begin(StartOnPlayersChoice);
  PointAt("H1");
  EXPECT_EQ(Cursor(), "H1");
  EXPECT_EQ(TakeLog(), Steps{"HighlightSquare 63"});
}
