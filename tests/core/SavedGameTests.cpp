#include <algorithm>

#include "tests/support/GameTest.h"

namespace {

class ASavedGame : public GameTest {
 protected:
  void Open(std::string_view squares) {
    const std::vector<MoveRow> moves = SquaresNamed(squares);
    game.OpenSavedGame({.elapsedHalfSeconds = 20, .noScoreGame = false, .moves = moves});
  }
  int TimesLogged(const std::string& line) {
    const Steps steps = TakeLog();
    return static_cast<int>(std::count(steps.begin(), steps.end(), line));
  }
};

}  // namespace

TEST_F(ASavedGame, TakesThePlaceOfTheGameBeforeIt) {
  Begin();
  PlayTour(game, 10);
  TakeBack(4);
  Open("C3 D5");
  EXPECT_EQ(MovesMade(state), SquaresNamed("C3 D5"));
  EXPECT_TRUE(MovesToRedo(state).empty());
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditRedo));
  EXPECT_EQ(SquaresTaken(), 2);
}

TEST_F(ASavedGame, LeavesKnightAndCursorOnItsLastSquare) {
  Begin();
  Open("C3 D5");
  EXPECT_EQ(Knight(), "D5");
  EXPECT_EQ(Cursor(), "D5");
}

TEST_F(ASavedGame, TakesJumpsThatNoKnightCanMake) {
  Begin();
  Open("A8 H1");
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 H1"));
}

TEST_F(ASavedGame, HasAFirstSquareThatIsNotThePlayersToTakeBack) {
  Begin(StartOnPlayersChoice);
  Open("C3");
  EXPECT_FALSE(game.GameInProgress());
  TakeBack();
  EXPECT_EQ(state.MoveCount, 1);
}

TEST_F(ASavedGame, ShowsItsClockWithoutStartingIt) {
  Begin();
  TakeLog();
  Open("C3 D5");
  EXPECT_EQ(state.ElapsedHalfSeconds, 20);
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 2 - 0:00:10.0");
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(ASavedGame, KeepsTheClockOfTheGameBeforeItWhenItHasNone) {
  Begin();
  state.ElapsedHalfSeconds = 7;
  state.NoScoreGame = true;
  game.OpenSavedGame({.elapsedHalfSeconds = std::nullopt, .moves = {}});
  EXPECT_EQ(state.ElapsedHalfSeconds, 7);
  EXPECT_TRUE(state.NoScoreGame);
  EXPECT_EQ(state.MoveCount, 0);
}

TEST_F(ASavedGame, BringsItsMarkWithIt) {
  Begin();
  for (const bool mark : {true, false}) {
    game.OpenSavedGame({.elapsedHalfSeconds = 20, .noScoreGame = mark, .moves = {}});
    EXPECT_EQ(state.NoScoreGame, mark);
  }
}

TEST_F(ASavedGame, EndsNothingThoughItIsOver) {
  Begin();
  window.onEndGame = [](const GameOverReport&) { ADD_FAILURE(); };
  Open(Games::DeadEndAfter20);
  EXPECT_EQ(state.MoveCount, 20);
  EXPECT_FALSE(state.ApplyingMoves);
}

TEST_F(ASavedGame, IsAnotherGame) {
  Begin();
  const std::uint32_t before = state.GameSerial;
  Open("C3 D5");
  EXPECT_NE(state.GameSerial, before);
}

TEST_F(ASavedGame, IsSeenFilling) {
  Begin();
  TakeLog();
  Open("C3 D5 E7");
  EXPECT_EQ(TimesLogged("DoEvents"), 3);
}

TEST_F(ASavedGame, IsFilledAtOnceForWhoWantsToLeave) {
  Begin();
  TakeLog();
  window.onDoEvents = [this] { window.Guard().SetCloseRequested(true); };
  Open("C3 D5 E7");
  EXPECT_EQ(TimesLogged("DoEvents"), 1);
  EXPECT_EQ(state.MoveCount, 3);
}
