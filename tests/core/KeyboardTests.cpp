#include "core/Keyboard.h"
#include "tests/support/GameTest.h"

namespace {

class Keyboard : public GameTest {
 protected:
  void Press(int keyCode) { game.pctGrid_KeyDown(keyCode); }

  // Where a key takes the cursor from a square.
  std::string From(std::string_view square, int keyCode) {
    const MoveRow row = SquareNamed(square);
    state.CursorX = row.x;
    state.CursorY = row.y;
    Press(keyCode);
    return Cursor();
  }

  // Where a key takes the cursor from none, with the knight on a square.
  std::string FromKnightOn(std::string_view square, int keyCode) {
    StartWithKnightOn(square);
    Press(keyCode);
    return Cursor();
  }

  // Where a key takes the cursor before the player has picked the first square.
  std::string BeforeTheFirstSquare(int keyCode) {
    Begin(StartOnPlayersChoice);
    Press(keyCode);
    return Cursor();
  }

  bool DoesNothing(int keyCode) {
    window.log.clear();
    const std::string cursorBefore = Cursor();
    const auto movesBefore = MovesMade(state);
    Press(keyCode);
    return window.log.empty() && Cursor() == cursorBefore && MovesMade(state) == movesBefore;
  }

  void StartWithKnightOn(std::string_view square) {
    const MoveRow row = SquareNamed(square);
    options.StartingX = row.x;
    options.StartingY = row.y;
    Begin();
    TakeBack();  // takes nothing back, but the cursor goes
  }
};

}  // namespace

TEST_F(Keyboard, StepsWithTheArrowKeys) {
  Begin();
  EXPECT_EQ(From("D4", 39), "E4");
  EXPECT_EQ(From("D4", 37), "C4");
  EXPECT_EQ(From("D4", 40), "D3");
  EXPECT_EQ(From("D4", 38), "D5");
}

TEST_F(Keyboard, StepsWithTheKeypad) {
  Begin();
  EXPECT_EQ(From("D4", 102), "E4");
  EXPECT_EQ(From("D4", 100), "C4");
  EXPECT_EQ(From("D4", 98), "D3");
  EXPECT_EQ(From("D4", 104), "D5");
}

TEST_F(Keyboard, JumpsToTheEdgesOfTheBoard) {
  Begin();
  EXPECT_EQ(From("D4", 35), "H4");
  EXPECT_EQ(From("D4", 36), "A4");
  EXPECT_EQ(From("D4", 34), "D1");
  EXPECT_EQ(From("D4", 33), "D8");
}

TEST_F(Keyboard, ShowsEachStepWhateverTheHighlightingMethod) {
  Begin();
  From("D4", 39);
  EXPECT_EQ(TakeLog(), Steps{"HighlightSquare 36 forced"});
}

TEST_F(Keyboard, StepsOntoTheEdges) {
  Begin();
  EXPECT_EQ(From("G4", 39), "H4");
  EXPECT_EQ(From("B4", 37), "A4");
  EXPECT_EQ(From("D2", 40), "D1");
  EXPECT_EQ(From("D7", 38), "D8");
}

TEST_F(Keyboard, StopsAtTheEdges) {
  Begin();
  for (const int key : {39, 102}) EXPECT_EQ(From("H4", key), "H4");
  for (const int key : {37, 100}) EXPECT_EQ(From("A4", key), "A4");
  for (const int key : {40, 98}) EXPECT_EQ(From("D1", key), "D1");
  for (const int key : {38, 104}) EXPECT_EQ(From("D8", key), "D8");
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Keyboard, StaysAtTheEdgeItJumpsTo) {
  Begin();
  EXPECT_EQ(From("H4", 35), "H4");
  EXPECT_EQ(From("A4", 36), "A4");
  EXPECT_EQ(From("D1", 34), "D1");
  EXPECT_EQ(From("D8", 33), "D8");
}

TEST_F(Keyboard, StepsFromTheKnightWhenThereIsNoCursor) {
  EXPECT_EQ(FromKnightOn("D4", 39), "E4");
  EXPECT_EQ(FromKnightOn("D4", 37), "C4");
  EXPECT_EQ(FromKnightOn("D4", 40), "D3");
  EXPECT_EQ(FromKnightOn("D4", 38), "D5");
  EXPECT_EQ(FromKnightOn("D4", 35), "H4");
  EXPECT_EQ(FromKnightOn("D4", 36), "A4");
  EXPECT_EQ(FromKnightOn("D4", 34), "D1");
  EXPECT_EQ(FromKnightOn("D4", 33), "D8");
}

TEST_F(Keyboard, IgnoresTheBackwardKeysFromAKnightAtTheirEdge) {
  for (const int key : {37, 100, 36}) {
    EXPECT_EQ(FromKnightOn("A4", key), "none") << key;
    EXPECT_TRUE(DoesNothing(key)) << key;
  }
  for (const int key : {38, 104, 33}) {
    EXPECT_EQ(FromKnightOn("D8", key), "none") << key;
    EXPECT_TRUE(DoesNothing(key)) << key;
  }
}

TEST_F(Keyboard, TakesOnlyTheirOwnEdgeAgainstTheBackwardKeys) {
  EXPECT_EQ(FromKnightOn("D8", 37), "C8");
  EXPECT_EQ(FromKnightOn("D8", 36), "A8");
  EXPECT_EQ(FromKnightOn("A4", 38), "A5");
  EXPECT_EQ(FromKnightOn("A4", 33), "A8");
}

TEST_F(Keyboard, PutsTheCursorOnAKnightThatTheForwardKeysCannotLeave) {
  for (const int key : {39, 102, 35}) EXPECT_EQ(FromKnightOn("H4", key), "H4") << key;
  for (const int key : {40, 98, 34}) EXPECT_EQ(FromKnightOn("D1", key), "D1") << key;
}

TEST_F(Keyboard, BeginsInTheFirstSquareBeforeTheFirstMove) {
  for (const int key : {39, 102, 40, 98}) EXPECT_EQ(BeforeTheFirstSquare(key), "A8") << key;
  EXPECT_EQ(BeforeTheFirstSquare(35), "H8");
  EXPECT_EQ(BeforeTheFirstSquare(34), "A1");
}

TEST_F(Keyboard, IgnoresTheBackwardKeysBeforeTheFirstMove) {
  for (const int key : {37, 100, 36, 38, 104, 33}) {
    EXPECT_EQ(BeforeTheFirstSquare(key), "none") << key;
  }
}

TEST_F(Keyboard, StepsOnFromACursorBeforeTheFirstMove) {
  BeforeTheFirstSquare(39);
  Press(39);
  Press(40);
  EXPECT_EQ(Cursor(), "B7");
}

TEST_F(Keyboard, BeginsInTheFirstSquareAgainAfterTheFirstMoveIsUndone) {
  Begin(StartOnPlayersChoice);
  ClickOn("E4");
  TakeBack();
  Press(39);
  EXPECT_EQ(Cursor(), "A8");
}

TEST_F(Keyboard, ClicksOnTheCursor) {
  for (const int key : {13, 32, 12, 101}) {
    Begin();
    PointAt("C7");
    Press(key);
    EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7")) << key;
  }
}

TEST_F(Keyboard, PicksTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  Press(34);
  Press(13);
  EXPECT_EQ(MovesMade(state), SquaresNamed("A1"));
}

TEST_F(Keyboard, ClicksNowhereWithoutACursor) {
  for (const FirstSquare position : {StartOnStoredSquare, StartOnPlayersChoice}) {
    Begin(position);
    TakeBack();
    for (const int key : {13, 32, 12, 101}) EXPECT_TRUE(DoesNothing(key)) << key;
  }
}

TEST_F(Keyboard, TakesAMoveBackWithBackspace) {
  Begin();
  PlayTour(game, 3);
  Press(8);
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7"));
}

TEST_F(Keyboard, IgnoresBackspaceWhileUndoIsDisabled) {
  Begin();
  EXPECT_TRUE(DoesNothing(8));
  EXPECT_EQ(Cursor(), "A8");
}

TEST_F(Keyboard, MovesTheCursorAfterTheEndOfTheGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  Press(39);
  EXPECT_EQ(Cursor(), "B1");
}

TEST_F(Keyboard, IgnoresAllOtherKeys) {
  Begin();
  PlayTour(game, 3);
  const auto isKnown = [](int key) {
    return key == 8 || key == 12 || key == 13 || key == 32 || (key >= 33 && key <= 40) ||
           key == 98 || key == 100 || key == 101 || key == 102 || key == 104;
  };
  for (int key = -1; key < 256; ++key) {
    EXPECT_TRUE(isKnown(key) || DoesNothing(key)) << key;
  }
}
