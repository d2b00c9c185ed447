#include "tests/support/GameTest.h"
#include "ui/board/BoardNews.h"

namespace {

class BoardNewsTest : public GameTest {
 protected:
  // The game has begun, and where it stands has been said.
  void BeginListening(FirstSquare startingPosition = StartOnStoredSquare) {
    Begin(startingPosition);
    news.Take();
  }

  // What is heard now; "nothing" when there is nothing to say.
  std::string Heard() {
    const auto sentence = news.Take();
    return sentence ? sentence->text : "nothing";
  }

  std::string HeardAfterPress(std::string_view square) {
    news.Expect(BoardNews::Wish::Press, IndexOf(square));
    ClickOn(square);
    return Answer();
  }

  std::string HeardAfterKey(BoardNews::Wish wish, int keyCode) {
    news.Expect(wish);
    game.pctGrid_KeyDown(keyCode);
    return Answer();
  }

  std::string HeardAfterStep(int keyCode) { return HeardAfterKey(BoardNews::Wish::Step, keyCode); }

  BoardNews news{state};

 private:
  std::string Answer() {
    std::string heard = Heard();
    news.Expect(BoardNews::Wish::Nothing);
    return heard;
  }
};

constexpr int LeftKey = 37;
constexpr int HomeKey = 36;
constexpr int RightKey = 39;
constexpr int DownKey = 40;
constexpr int EnterKey = 13;
constexpr int BackspaceKey = 8;

}  // namespace

TEST_F(BoardNewsTest, BeginsWithTheKnightAndWhatItReaches) {
  Begin();
  EXPECT_EQ(Heard(), "Chessboard, A8, knight, 1 visited, reaches B6, C7");
}

TEST_F(BoardNewsTest, HasNothingToSayTwice) {
  BeginListening();
  EXPECT_EQ(Heard(), "nothing");
}

TEST_F(BoardNewsTest, SaysTheSquareOfTheCursorAndItsState) {
  BeginListening();
  EXPECT_EQ(HeardAfterStep(RightKey), "B8, free");
  EXPECT_EQ(HeardAfterStep(DownKey), "B7, free");
  EXPECT_EQ(HeardAfterStep(DownKey), "B6, can be reached");
}

TEST_F(BoardNewsTest, SaysThatTheCursorIsAtTheEdge) {
  BeginListening();
  EXPECT_EQ(HeardAfterStep(LeftKey), "A8, edge of the board");
  EXPECT_EQ(HeardAfterStep(HomeKey), "A8, edge of the board");
}

TEST_F(BoardNewsTest, SaysHowManySquaresAMoveMakesAndWhatTheKnightReachesNow) {
  BeginListening();
  EXPECT_EQ(HeardAfterPress("B6"), "B6, 2 visited, reaches A4, C4, C8, D5, D7");
}

TEST_F(BoardNewsTest, SaysThatNoSquareCanBeReached) {
  BeginListening();
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_EQ(Heard(), "A1, 20 visited, no square in reach");
}

TEST_F(BoardNewsTest, SaysThatTheTourIsComplete) {
  BeginListening();
  PlayTour(game, SquareCount);
  EXPECT_EQ(Heard(), "C1, 64 visited, the tour is complete");
}

TEST_F(BoardNewsTest, SaysWhyAPressChangesNothing) {
  BeginListening();
  HeardAfterPress("B6");
  EXPECT_EQ(HeardAfterPress("H1"), "H1, cannot be reached");
  EXPECT_EQ(HeardAfterPress("A8"), "A8, visited, cannot be reached");
  EXPECT_EQ(HeardAfterKey(BoardNews::Wish::Press, EnterKey), "B6, knight, cannot be reached");
}

TEST_F(BoardNewsTest, SaysWhereUndoAndRedoLead) {
  BeginListening();
  HeardAfterPress("B6");
  TakeBack();
  EXPECT_EQ(Heard(), "A8, 1 visited, reaches B6, C7");
  MakeAgain();
  EXPECT_EQ(Heard(), "B6, 2 visited, reaches A4, C4, C8, D5, D7");
}

TEST_F(BoardNewsTest, SaysTheCountAgainWhenAMoveIsTakenBackAtOnce) {
  BeginListening();
  window.onEndGame = [this](const GameOverReport&) { TakeBack(); };
  PlaySquares(game, Games::DeadEndAfter20.substr(0, Games::DeadEndAfter20.size() - 3));
  Heard();
  EXPECT_EQ(HeardAfterPress("A1"), "C2, 19 visited, reaches A1, A3, B4, D4");
}

TEST_F(BoardNewsTest, SaysThatThereIsNothingToUndo) {
  BeginListening();
  game.mnuFileNew_Click();
  Heard();
  EXPECT_EQ(HeardAfterKey(BoardNews::Wish::TakeBack, BackspaceKey), "A8, nothing to undo");
}

TEST_F(BoardNewsTest, SaysThatAGameIsNew) {
  BeginListening();
  game.mnuFileNew_Click();
  EXPECT_EQ(Heard(), "new game, A8, knight, 1 visited, reaches B6, C7");
}

TEST_F(BoardNewsTest, SaysThatARestartedGameIsNew) {
  BeginListening();
  PlayTour(game, 3);
  Heard();
  window.answers = {PlayerSays::Yes};
  game.mnuFileRestart_Click();
  EXPECT_EQ(Heard(), "new game, A8, knight, 1 visited, reaches B6, C7");
}

TEST_F(BoardNewsTest, DoesNotTakeTheFirstSquareForANewGameWhileItCanBeLeftByRedo) {
  BeginListening();
  PlayTour(game, 3);
  Heard();
  TakeBack(2);
  EXPECT_EQ(Heard(), "A8, 1 visited, reaches B6, C7");
}

TEST_F(BoardNewsTest, AsksForTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  EXPECT_EQ(Heard(), "Chessboard, choose the first square");
  game.mnuFileNew_Click();
  EXPECT_EQ(Heard(), "new game, choose the first square");
  EXPECT_EQ(HeardAfterStep(RightKey), "A8, can be reached");
}

TEST_F(BoardNewsTest, AsksForTheFirstSquareAgainWhenItIsTakenBack) {
  BeginListening(StartOnPlayersChoice);
  EXPECT_EQ(HeardAfterPress("H1"), "H1, 1 visited, reaches F2, G3");
  TakeBack();
  EXPECT_EQ(Heard(), "choose the first square");
}

TEST_F(BoardNewsTest, SaysTheSquareAgainWhenTheKeyboardComesBack) {
  BeginListening();
  news.ComeBack();
  EXPECT_EQ(Heard(), "A8, knight");
  EXPECT_EQ(Heard(), "nothing");
}

TEST_F(BoardNewsTest, SaysAWholeWalkInOneSentence) {
  BeginListening();
  PlayTour(game, 5);
  news.ComeBack();
  EXPECT_EQ(Heard(), "E8, 5 visited, reaches F6, G7");
}
