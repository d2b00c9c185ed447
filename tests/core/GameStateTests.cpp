#include <algorithm>

#include "tests/support/GameTest.h"

namespace {

class GameStateTest : public GameTest {
 protected:
  bool SpareColumnAndRowAreUntouched() const {
    for (int i = 0; i <= BoardSide; ++i) {
      if (state.Cell(BoardSide, i) != GameState::Unvisited) return false;
      if (state.Cell(i, BoardSide) != GameState::Unvisited) return false;
    }
    return true;
  }
};

constexpr MoveRow UntouchedRow{0, 0};

}  // namespace

TEST_F(GameStateTest, HasEveryRowAtZeroBeforeStartUp) {
  EXPECT_TRUE(std::all_of(state.MoveList.begin(), state.MoveList.end(),
                          [](const MoveRow& row) { return row == UntouchedRow; }));
}

TEST_F(GameStateTest, HasSixtyFourEmptyRowsBeforeTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  for (std::size_t row = 0; row < 64; ++row) EXPECT_EQ(state.MoveList[row], EmptyMove) << row;
}

TEST_F(GameStateTest, LeavesTheLastRowAtZeroAtStartUp) {
  Begin();
  EXPECT_EQ(state.MoveList[64], UntouchedRow);
}

TEST_F(GameStateTest, LeavesTheLastRowAtZeroAfterACompleteTour) {
  Begin();
  PlayTour(game, 64);
  EXPECT_EQ(state.MoveCount, 64);
  EXPECT_EQ(state.MoveList[64], UntouchedRow);
}

TEST_F(GameStateTest, LeavesTheLastRowAtZeroInANewGame) {
  Begin();
  PlayTour(game, 64);
  game.mnuFileNew_Click();
  EXPECT_EQ(state.MoveList[64], UntouchedRow);
}

TEST_F(GameStateTest, NeverTouchesTheSpareColumnAndRow) {
  Begin();
  PlayTour(game, 64);
  EXPECT_TRUE(SpareColumnAndRowAreUntouched());
  game.mnuFileNew_Click();
  EXPECT_TRUE(SpareColumnAndRowAreUntouched());
}

TEST_F(GameStateTest, DoesNotTakeTheSpareColumnAndRowForSquares) {
  Begin();
  for (int x = 0; x < BoardSide; ++x) {
    for (int y = 0; y < BoardSide; ++y) state.Cell(x, y) = GameState::Visited;
  }
  EXPECT_TRUE(game.CheckIfGameOver(7, 7));
  EXPECT_TRUE(game.CheckIfGameOver(6, 7));
  EXPECT_TRUE(game.CheckIfGameOver(7, 6));
}

TEST_F(GameStateTest, TakesAllSixtyFourSquaresInACompleteTour) {
  Begin();
  PlayTour(game, 64);
  EXPECT_EQ(SquaresTaken(), 64);
  EXPECT_EQ(MovesMade(state), SquaresNamed(Games::CompleteTour));
}

TEST_F(GameStateTest, HasAnEmptyBoardBeforeThePlayerPicksTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  EXPECT_EQ(state.MoveCount, 0);
  EXPECT_EQ(SquaresTaken(), 0);
  EXPECT_FALSE(state.FirstMoveMade);
}

TEST_F(GameStateTest, HasMadeTheFirstMoveWhenTheProgramPlacesIt) {
  for (const FirstSquare position : {StartOnStoredSquare, StartOnRandomSquare}) {
    Begin(position);
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_TRUE(state.FirstMoveMade);
    game.StartNewGame();
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_TRUE(state.FirstMoveMade);
  }
}
