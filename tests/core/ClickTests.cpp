#include <limits>

#include "tests/support/GameTest.h"

namespace {

class Click : public GameTest {
 protected:
  // Clicks and tells whether anything at all came of it.
  bool DoesNothing(int index) {
    window.log.clear();
    const auto movesBefore = MovesMade(state);
    const std::string knightBefore = Knight();
    const std::string cursorBefore = Cursor();
    game.pctGrid_Click(index);
    return window.log.empty() && MovesMade(state) == movesBefore && Knight() == knightBefore &&
           Cursor() == cursorBefore;
  }
  bool DoesNothing(std::string_view square) { return DoesNothing(IndexOf(square)); }
};

}  // namespace

TEST_F(Click, OnAFreeSquareAKnightsMoveAwayMovesThere) {
  Begin();
  ClickOn("C7");
  EXPECT_EQ(Knight(), "C7");
  EXPECT_EQ(Cursor(), "C7");
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7"));
}

TEST_F(Click, ReachesAllEightSquaresAroundTheKnight) {
  options.StartingX = 4;
  options.StartingY = 3;
  Begin();
  for (const std::string_view square : {"C6", "C4", "D7", "D3", "F7", "F3", "G6", "G4"}) {
    ClickOn(square);
    EXPECT_EQ(Knight(), square);
    TakeBack();
  }
}

TEST_F(Click, DiscardsWhatCouldBeRedoneBeforeItMoves) {
  Begin();
  ClickOn("C7");
  EXPECT_EQ(window.log.front(), "mnuEditRedo off");
  EXPECT_EQ(window.log[1], "mnuEditUndo on");
}

TEST_F(Click, OnASquareThatIsNoKnightsMoveAwayDoesNothing) {
  Begin();
  for (const std::string_view square : {"B8", "A7", "B7", "C6", "C8", "D7", "H1"}) {
    EXPECT_TRUE(DoesNothing(square)) << square;
  }
}

TEST_F(Click, OnAVisitedSquareDoesNothing) {
  Begin();
  PlayTour(game, 3);
  EXPECT_TRUE(DoesNothing("C7"));
  EXPECT_TRUE(DoesNothing("A8"));
}

TEST_F(Click, OnTheKnightDoesNothing) {
  Begin();
  EXPECT_TRUE(DoesNothing("A8"));
}

TEST_F(Click, BesideTheBoardDoesNothing) {
  for (const FirstSquare position : {StartOnStoredSquare, StartOnPlayersChoice}) {
    Begin(position);
    for (const int index :
         {-1, -9, 64, 72, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
      EXPECT_TRUE(DoesNothing(index)) << index;
    }
  }
}

TEST_F(Click, DoesNothingWhileTheProgramMakesMoves) {
  Begin();
  state.ApplyingMoves = true;
  EXPECT_TRUE(DoesNothing("C7"));
}

TEST_F(Click, DoesNothingAfterTheEndOfTheGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  for (int index = 0; index < SquareCount; ++index) EXPECT_TRUE(DoesNothing(index)) << index;
}

TEST_F(Click, ThatIsIllegalKeepsWhatCanBeRedone) {
  Begin();
  PlayTour(game, 4);
  TakeBack(2);
  EXPECT_TRUE(DoesNothing("H1"));
  EXPECT_EQ(MovesToRedo(state), SquaresNamed("B5 D6"));
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditRedo));
}

TEST_F(Click, OnAnySquareTakesTheFirstOne) {
  for (int index = 0; index < SquareCount; ++index) {
    Begin(StartOnPlayersChoice);
    game.pctGrid_Click(index);
    EXPECT_EQ(SquareIndex(state.KnightX, state.KnightY), index);
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_TRUE(state.FirstMoveMade);
    game.StartNewGame();
    EXPECT_EQ(SquaresTaken(), 0);
  }
}

TEST_F(Click, OnTheFirstSquareTakesItsStepsInOrder) {
  Begin(StartOnPlayersChoice);
  ClickOn("E4");
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuEditRedo off",
                           "mnuEditUndo on",
                           "mnuViewHistory on",
                           "mnuEditHistory on",
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "RestoreColors",
                           "caption Gallopade Nova: 1 - 0:00:00.0",
                           "clock on",
                           "RestoreColors",
                       }));
}

TEST_F(Click, OnTheFirstSquareDiscardsTheGameThatWasUndone) {
  Begin(StartOnPlayersChoice);
  PlayTour(game, 3);
  TakeBack(3);
  EXPECT_EQ(MovesToRedo(state), SquaresNamed("A8 C7 B5"));
  ClickOn("E4");
  EXPECT_TRUE(MovesToRedo(state).empty());
  EXPECT_EQ(state.MoveList[1], EmptyMove);
  EXPECT_EQ(state.MoveList[2], EmptyMove);
}
