#include <algorithm>
#include <set>

#include "solver/Autoplay.h"
#include "tests/support/GameTest.h"

namespace {

class AutoplayTest : public GameTest {
 protected:
  void Autoplay() { mnuFileAutoplay_Click(game, state, window, random); }
  bool IsOver() const { return game.CheckIfGameOver(state.KnightX, state.KnightY); }

  Random random;
};

bool AreKnightsMoves(const std::vector<MoveRow>& moves) {
  const auto jumps = [](const MoveRow& from, const MoveRow& to) {
    return !IsKnightsMove(from.x, from.y, to.x, to.y);
  };
  return std::adjacent_find(moves.begin(), moves.end(), jumps) == moves.end();
}

}  // namespace

TEST_F(AutoplayTest, WalksOnUntilNoMoveIsLeft) {
  Begin();
  Autoplay();
  EXPECT_TRUE(IsOver());
  EXPECT_EQ(SquaresTaken(), state.MoveCount);
  EXPECT_TRUE(AreKnightsMoves(MovesMade(state)));
}

TEST_F(AutoplayTest, KeepsTheMovesThatWereMade) {
  Begin();
  PlayTour(game, 30);
  const std::vector<MoveRow> before = MovesMade(state);
  Autoplay();
  const std::vector<MoveRow> after = MovesMade(state);
  EXPECT_TRUE(std::equal(before.begin(), before.end(), after.begin()));
}

TEST_F(AutoplayTest, TakesARandomFirstSquareOnAnEmptyBoard) {
  Begin(StartOnPlayersChoice);
  Autoplay();
  EXPECT_TRUE(state.FirstMoveMade);
  EXPECT_GT(state.MoveCount, 1);
  EXPECT_TRUE(IsOver());
}

TEST_F(AutoplayTest, DrawsTheFirstSquareBeforeItWalksOn) {
  Begin(StartOnPlayersChoice);
  TakeLog();
  Autoplay();
  const Steps log = TakeLog();
  const std::string aMoveBegins = "mnuEditUndo on";
  const auto first = std::find(log.begin(), log.end(), aMoveBegins);
  const auto second = std::find(first + 1, log.end(), aMoveBegins);
  EXPECT_EQ(*(second - 1), "RestoreColors");
}

TEST_F(AutoplayTest, OnADeadEndMakesNoMoveButTheGameIsOutOfTheScores) {
  Begin();
  window.onEndGame = [](const GameOverReport&) {};
  PlaySquares(game, Games::DeadEndAfter20);
  TakeLog();
  Autoplay();
  EXPECT_EQ(state.MoveCount, 20);
  EXPECT_TRUE(state.NoScoreGame);
  EXPECT_EQ(TakeLog(),
            (Steps{"BeginWork", "mnuEditRedo off", "clock off", "mnuFileAutoplay off",
                   "mnuFileSolve off", "mnuFileSave off", "mnuFileSaveReplay on", "EndWork"}));
}

TEST_F(AutoplayTest, LeavesAGameThatCanOnlyBeReplayed) {
  Begin();
  Autoplay();
  EXPECT_TRUE(IsOn(MenuEntry::mnuFileSaveReplay));
  EXPECT_TRUE(IsOn(MenuEntry::mnuViewReplay));
  EXPECT_FALSE(IsOn(MenuEntry::mnuFileSave));
  EXPECT_FALSE(IsOn(MenuEntry::mnuFileAutoplay));
  EXPECT_FALSE(IsOn(MenuEntry::mnuFileSolve));
}

TEST_F(AutoplayTest, NeitherStartsTheClockNorAnnouncesTheEnd) {
  Begin();
  bool announced = false;
  bool ticking = false;
  window.onEndGame = [&](const GameOverReport&) { announced = true; };
  window.onDoEvents = [&] { ticking |= window.IsClockEnabled(); };
  Autoplay();
  EXPECT_FALSE(announced);
  EXPECT_FALSE(ticking);
  EXPECT_FALSE(window.IsClockEnabled());
  EXPECT_FALSE(state.ApplyingMoves);
}

TEST_F(AutoplayTest, StopsARunningClock) {
  Begin();
  PlayTour(game, 10);
  ASSERT_TRUE(window.IsClockEnabled());
  Autoplay();
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(AutoplayTest, DrawsTheBoardAndYieldsOnceAfterEveryMove) {
  Begin();
  Autoplay();
  const Steps log = TakeLog();
  EXPECT_EQ(std::count(log.begin(), log.end(), "DoEvents"), state.MoveCount - 1);
  const auto firstYield = std::find(log.begin(), log.end(), "DoEvents");
  EXPECT_EQ(*(firstYield - 1), "RestoreColors");
}

TEST_F(AutoplayTest, DropsTheMovesThatCouldBeRedone) {
  Begin();
  PlayTour(game, 30);
  TakeBack(5);
  window.onDoEvents = [this] { EXPECT_TRUE(MovesToRedo(state).empty()); };
  Autoplay();
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditRedo));
}

TEST_F(AutoplayTest, WalksDifferentlyEveryTime) {
  std::set<std::string> ends;
  for (int walk = 0; walk < 10; ++walk) {
    Begin();
    Autoplay();
    ends.insert(Knight() + std::to_string(state.MoveCount));
  }
  EXPECT_GT(ends.size(), 1U);
}

TEST_F(AutoplayTest, WalksDifferentlyFromTheSameRandomNumbers) {
  std::set<std::string> ends;
  for (int walk = 0; walk < 10; ++walk) {
    Begin();
    random = Random();
    Autoplay();
    ends.insert(Knight() + std::to_string(state.MoveCount));
  }
  EXPECT_GT(ends.size(), 1U);
}

TEST_F(AutoplayTest, IsNotDisturbedByClicks) {
  Begin();
  window.onDoEvents = [this] {
    const int moves = state.MoveCount;
    for (int index = 0; index < SquareCount; ++index) game.pctGrid_Click(index);
    EXPECT_EQ(state.MoveCount, moves);
  };
  Autoplay();
  EXPECT_TRUE(AreKnightsMoves(MovesMade(state)));
}

TEST_F(AutoplayTest, IsAtWorkAsLongAsItWalks) {
  Begin();
  window.onDoEvents = [this] { EXPECT_TRUE(window.IsWorking()); };
  Autoplay();
  EXPECT_FALSE(window.IsWorking());
}

TEST_F(AutoplayTest, EndsEarlyWhenTheWindowIsToClose) {
  Begin();
  window.onDoEvents = [this] { window.Guard().SetCloseRequested(state.MoveCount >= 5); };
  Autoplay();
  EXPECT_EQ(state.MoveCount, 5);
  EXPECT_FALSE(state.ApplyingMoves);
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(AutoplayTest, AWalkThatWasBrokenOffCanBePlayedOn) {
  Begin();
  window.onDoEvents = [this] { window.Guard().SetCloseRequested(state.MoveCount >= 5); };
  Autoplay();
  EXPECT_TRUE(IsOn(MenuEntry::mnuFileSave));
  EXPECT_TRUE(IsOn(MenuEntry::mnuFileAutoplay));
  EXPECT_TRUE(IsOn(MenuEntry::mnuFileSolve));
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditUndo));
  EXPECT_FALSE(IsOn(MenuEntry::mnuFileSaveReplay));
}

TEST_F(AutoplayTest, EndsWhenTheListOfAGameFileIsFullBeforeTheBoardIs) {
  Begin();
  state.ApplyingMoves = true;
  for (int i = 0; i < 63; ++i) game.ValidMove(i % 2 == 0 ? 1 : 0, i % 2 == 0 ? 2 : 0);
  state.ApplyingMoves = false;
  Autoplay();
  EXPECT_EQ(state.MoveCount, 64);
  EXPECT_FALSE(IsOn(MenuEntry::mnuFileAutoplay));
}
