#include <algorithm>
#include <random>

#include "tests/ui/CommandTest.h"
#include "ui/commands/CommandHistory.h"

namespace {

class CommandHistory : public CommandTest {
 protected:
  void PlayTheTour(int moves) { PlayTour(game, moves); }
  void Undo(int times) {
    for (int i = 0; i < times; ++i) game.mnuEditUndo_Click();
  }
  void ShowHistory(const std::function<void()>& whileOpen) {
    windows.onShow = [whileOpen](const std::string&) { whileOpen(); };
    mnuEditHistory_Click(context);
  }
};

// What can be undone and redone, as a player would tell it.
class CommandModel {
 public:
  void Take(const std::string& square) {
    made_.push_back(square);
    undone_.clear();
  }
  void Undo(std::size_t kept) {
    if (made_.size() <= kept) return;
    undone_.insert(undone_.begin(), made_.back());
    made_.pop_back();
  }
  void Redo() {
    if (undone_.empty()) return;
    made_.push_back(undone_.front());
    undone_.erase(undone_.begin());
  }
  std::vector<std::string> Rows(std::size_t kept) const {
    std::vector<std::string> rows;
    for (std::size_t i = kept; i < made_.size(); ++i) rows.push_back("Undo\t" + made_[i]);
    rows.push_back("No Change");
    for (const std::string& square : undone_) rows.push_back("Redo\t" + square);
    return rows;
  }

 private:
  std::vector<std::string> made_;
  std::vector<std::string> undone_;
};

}  // namespace

TEST_F(CommandHistory, HasOneRowForAFreshGame) {
  Begin();
  EXPECT_EQ(CommandsOf(state).rows, (std::vector<std::string>{"No Change"}));
  EXPECT_EQ(CommandsOf(state).noChange, 0);
}

TEST_F(CommandHistory, ListsWhatCanBeUndoneAndRedone) {
  Begin();
  PlayTheTour(5);
  Undo(2);
  const CommandList commands = CommandsOf(state);
  EXPECT_EQ(commands.rows, (std::vector<std::string>{"Undo\tC7", "Undo\tB5", "No Change",
                                                     "Redo\tD6", "Redo\tE8"}));
  EXPECT_EQ(commands.noChange, 2);
}

TEST_F(CommandHistory, ListsTheFirstSquareThatThePlayerChose) {
  Begin(FirstSquare::PlayersChoice);
  PlayTheTour(2);
  EXPECT_EQ(CommandsOf(state).rows,
            (std::vector<std::string>{"Undo\tA8", "Undo\tC7", "No Change"}));
  Undo(2);
  EXPECT_EQ(CommandsOf(state).rows,
            (std::vector<std::string>{"No Change", "Redo\tA8", "Redo\tC7"}));
}

TEST_F(CommandHistory, ListsNoSixtyFifthMove) {
  Begin();
  windows.gameOverAnswer = GameOverAnswer::Undo;
  PlayTheTour(64);
  EXPECT_EQ(CommandsOf(state).rows.back(), "Redo\tC1");
  EXPECT_EQ(CommandsOf(state).rows.size(), 64U);
  windows.gameOverAnswer = GameOverAnswer::MainButton;
  game.mnuEditRedo_Click();
  EXPECT_EQ(CommandsOf(state).rows.back(), "No Change");
}

TEST_F(CommandHistory, EqualsWhatASimpleModelPredicts) {
  std::mt19937 random(1848);
  const auto below = [&random](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  for (int games = 0; games < 100; ++games) {
    state = GameState{};
    const std::size_t kept = below(2);
    Begin(kept == 0 ? FirstSquare::PlayersChoice : FirstSquare::Stored);
    CommandModel model;
    for (const MoveRow& row : MovesMade(state)) model.Take(SquareName(row.x, row.y));
    for (int i = 0; i < 200; ++i) {
      const int square = static_cast<int>(below(64));
      const int before = state.MoveCount;
      switch (below(8)) {
        case 0:
          game.mnuEditUndo_Click();
          model.Undo(kept);
          break;
        case 1:
          game.mnuEditRedo_Click();
          model.Redo();
          break;
        default:
          game.pctGrid_Click(square);
          if (state.MoveCount > before) model.Take(SquareName(ColumnOf(square), RowOf(square)));
      }
      ASSERT_EQ(CommandsOf(state).rows, model.Rows(kept));
    }
  }
}

TEST_F(CommandHistory, UndoesManyMovesOneByOne) {
  Begin();
  PlayTheTour(10);
  TakeLog();
  StepThroughCommands(context, -4);
  EXPECT_EQ(state.MoveCount, 6);
  const Steps log = TakeLog();
  EXPECT_EQ(std::count(log.begin(), log.end(), "DoEvents"), 4);
  EXPECT_EQ(MovesToRedo(state).size(), 4U);
}

TEST_F(CommandHistory, UndoesToTheFirstSquare) {
  Begin();
  PlayTheTour(10);
  StepThroughCommands(context, -9);
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8"));
}

TEST_F(CommandHistory, UndoesToTheEmptyBoardWhenThePlayerChoseTheFirstSquare) {
  Begin(FirstSquare::PlayersChoice);
  PlayTheTour(10);
  StepThroughCommands(context, -10);
  EXPECT_EQ(state.MoveCount, 0);
  EXPECT_FALSE(state.FirstMoveMade);
}

TEST_F(CommandHistory, RedoesManyMovesOneByOne) {
  Begin();
  PlayTheTour(10);
  Undo(6);
  TakeLog();
  StepThroughCommands(context, 5);
  EXPECT_EQ(state.MoveCount, 9);
  const Steps log = TakeLog();
  EXPECT_EQ(std::count(log.begin(), log.end(), "DoEvents"), 5);
  EXPECT_EQ(MovesToRedo(state), SquaresNamed("G3"));
}

TEST_F(CommandHistory, LetsNothingElseHappenWhileItSteps) {
  Begin();
  PlayTheTour(10);
  int works = 0;
  window.onDoEvents = [&] { works += window.IsWorking() ? 1 : 0; };
  StepThroughCommands(context, -3);
  EXPECT_EQ(works, 3);
  EXPECT_FALSE(window.IsWorking());
}

TEST_F(CommandHistory, AnnouncesTheEndThatARedoBrings) {
  Begin();
  windows.gameOverAnswer = GameOverAnswer::Undo;
  PlaySquares(game, Games::DeadEndAfter20);
  windows.gameOverAnswer = GameOverAnswer::MainButton;
  Undo(2);
  TakeLog();
  StepThroughCommands(context, 3);
  EXPECT_EQ(state.MoveCount, 20);
  EXPECT_EQ(TakeWindows(),
            (Steps{"show frmGameOver &Submit to Scores|There are no more valid moves.",
                   "show frmScores low|20|0"}));
}

namespace {

// A list of moves that goes on after a dead end, as a file of jumps can have it.
class JumpsAfterTheEnd : public CommandHistory {
 protected:
  void PlayPastADeadEnd() {
    Begin();
    windows.gameOverAnswer = GameOverAnswer::Undo;
    PlaySquares(game, Games::DeadEndAfter20);
    Undo(2);
    state.MoveList[20] = SquareNamed("H8");
    state.MoveList[21] = SquareNamed("H1");
    windows.gameOverAnswer = GameOverAnswer::MainButton;
  }
};

}  // namespace

TEST_F(JumpsAfterTheEnd, AreNotRedoneWhenAStepHasEndedTheGame) {
  PlayPastADeadEnd();
  StepThroughCommands(context, 5);
  EXPECT_EQ(state.MoveCount, 20);
}

TEST_F(JumpsAfterTheEnd, AreNotRedoneWhenThePlayerTookTheLastMoveBack) {
  PlayPastADeadEnd();
  windows.gameOverAnswer = GameOverAnswer::Undo;
  StepThroughCommands(context, 5);
  EXPECT_EQ(state.MoveCount, 19);
}

TEST_F(JumpsAfterTheEnd, AreNotRedoneInANewGame) {
  PlayPastADeadEnd();
  windows.scoresAnswer = ScoresAnswer::NewGame;
  StepThroughCommands(context, 5);
  EXPECT_EQ(state.MoveCount, 1);
  EXPECT_EQ(MovesToRedo(state).size(), 0U);
}

TEST_F(CommandHistory, StopsTheClockWhileItIsOpen) {
  Begin();
  PlayTheTour(10);
  ShowHistory([&] { EXPECT_FALSE(window.IsClockEnabled()); });
}

TEST_F(CommandHistory, StartsTheClockAfterwardsEvenIfItWasNotRunning) {
  Begin();
  PlayTheTour(10);
  window.EnableClock(false);
  ShowHistory([] {});
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(CommandHistory, LeavesTheClockOfAFinishedGameStopped) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  ShowHistory([] {});
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(CommandHistory, LeavesTheClockOfANewGameStopped) {
  Begin();
  PlayTheTour(10);
  ShowHistory([&] { game.StartNewGame(); });
  EXPECT_FALSE(window.IsClockEnabled());
}
