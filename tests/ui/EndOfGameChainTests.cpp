// From the last move to the list that is opened again, with every way of closing every window.

#include <QFile>
#include <QLabel>
#include <QTest>

#include "storage/ScoreLists.h"
#include "tests/ui/EndgameDesk.h"

namespace {

// A way of closing a window: a button's name, a key, or the window's own close box.
enum class Way { OK, Main, Undo, Close, NewGame, Replay, Enter, Escape, CloseBox };
enum class NameIs { Untouched, Typed, Entered };

std::string Describe(Way way) {
  constexpr std::array<const char*, 9> names{"OK",     "Main",  "Undo",   "Close",   "NewGame",
                                             "Replay", "Enter", "Escape", "CloseBox"};
  return names.at(static_cast<std::size_t>(way));
}

void CloseBy(Way way, QWidget& window) {
  constexpr std::array<const char*, 6> buttons{"cmdOK",    "cmdScoresReplay", "cmdUndo",
                                               "cmdClose", "cmdNewGame",      "cmdReplay"};
  if (way == Way::Enter) {
    QTest::keyClick(&window, Qt::Key_Return);
  } else if (way == Way::Escape) {
    QTest::keyClick(&window, Qt::Key_Escape);
  } else if (way == Way::CloseBox) {
    window.close();
  } else {
    Press(window, buttons.at(static_cast<std::size_t>(way)));
  }
}

class EndOfGameChain : public EndgameDesk {
 protected:
  void ExpectWindow(const QString& name, Way way) {
    WhenNextModalOpens([=](QWidget& window) {
      EXPECT_EQ(window.objectName(), name);
      CloseBy(way, window);
    });
  }
  void ExpectScores(Way way, NameIs nameIs) {
    WhenNextModalOpens([=](QWidget& window) {
      auto& scores = dynamic_cast<frmScores&>(window);
      if (nameIs != NameIs::Untouched) TypeName(scores, "Ann");
      if (nameIs == NameIs::Entered) QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
      CloseBy(way, window);
    });
    if (way == Way::Replay) ExpectReplay();
  }
  void ExpectReplay() {
    WhenNextModalOpens([](QWidget& window) {
      EXPECT_EQ(window.objectName(), "frmReplay");
      Press(window, "cmdFinish");
      Press(window, "cmdClose");
    });
  }
  void FinishTheTour() {
    Open();
    PlayOnBoard(Games::CompleteTour);
    EXPECT_TRUE(AllVisitsMade());
  }
  ScoreRow FirstHighScore() const {
    return RowsFrom(KeptFile(ProgramFile("Scores.dat")).Values(), ScoreList::High)[0];
  }
  void ExpectGameAfter(Way scoresWay) {
    const bool isNewGame = scoresWay == Way::NewGame;
    EXPECT_EQ(State().MoveCount, isNewGame ? 1 : 64);
    EXPECT_EQ(State().NoScoreGame, !isNewGame);
    EXPECT_TRUE(Window().PlayerMayAct());
    EXPECT_FALSE(State().ApplyingMoves);
    EXPECT_EQ(MenuItem("mnuFileSaveReplay").isEnabled(), !isNewGame);
    EXPECT_FALSE(Window().IsClockEnabled());
  }
};

}  // namespace

// --- the firework ---

class AfterTheFirework : public EndOfGameChain, public testing::WithParamInterface<Way> {};

TEST_P(AfterTheFirework, FollowsTheEndOfTheGame) {
  ExpectWindow("frmWin", GetParam());
  ExpectWindow("frmGameOver", Way::Main);
  ExpectScores(Way::Close, NameIs::Typed);
  FinishTheTour();
  EXPECT_EQ(FirstHighScore().name, "Ann");
  ExpectGameAfter(Way::Close);
}

INSTANTIATE_TEST_SUITE_P(ClosedBy, AfterTheFirework,
                         testing::Values(Way::OK, Way::Enter, Way::Escape, Way::CloseBox),
                         [](const auto& test) { return Describe(test.param); });

// --- the end of the game and the scores ---

constexpr std::array<Way, 5> WaysOutOfTheScores{Way::Close, Way::NewGame, Way::Replay, Way::Escape,
                                                Way::CloseBox};

class AfterTheScores : public EndOfGameChain,
                       public testing::WithParamInterface<std::tuple<Way, Way>> {};

TEST_P(AfterTheScores, TheScoreIsFoundAgain) {
  const auto [overWay, scoresWay] = GetParam();
  ExpectWindow("frmWin", Way::OK);
  ExpectWindow("frmGameOver", overWay);
  ExpectScores(scoresWay, NameIs::Typed);
  FinishTheTour();
  ExpectGameAfter(scoresWay);
  LookAtList("mnuViewHighScores", [](frmScores& scores) {
    EXPECT_EQ(LabelAt(scores, "lblNames", 0).text(), "Ann");
    EXPECT_EQ(LabelAt(scores, "lblMoves", 0).text(), "64");
    EXPECT_EQ(LabelAt(scores, "lblNames", 1).text(), "");
  });
}

INSTANTIATE_TEST_SUITE_P(ClosedBy, AfterTheScores,
                         testing::Combine(testing::Values(Way::Main, Way::Enter, Way::Escape,
                                                          Way::CloseBox),
                                          testing::ValuesIn(WaysOutOfTheScores)),
                         [](const auto& test) {
                           return Describe(std::get<0>(test.param)) + "Then" +
                                  Describe(std::get<1>(test.param));
                         });

// --- what was in the box ---

class NameAtClosing : public EndOfGameChain, public testing::WithParamInterface<Way> {};

TEST_P(NameAtClosing, IsEmptyWhenTheBoxWasNotTouched) {
  ExpectWindow("frmWin", Way::OK);
  ExpectWindow("frmGameOver", Way::Main);
  ExpectScores(GetParam(), NameIs::Untouched);
  FinishTheTour();
  EXPECT_EQ(FirstHighScore().name, "");
  EXPECT_EQ(FirstHighScore().moves, "64");
}

TEST_P(NameAtClosing, IsKeptWhenItWasEntered) {
  ExpectWindow("frmWin", Way::OK);
  ExpectWindow("frmGameOver", Way::Main);
  ExpectScores(GetParam(), NameIs::Entered);
  FinishTheTour();
  EXPECT_EQ(FirstHighScore().name, "Ann");
}

INSTANTIATE_TEST_SUITE_P(ClosedBy, NameAtClosing, testing::ValuesIn(WaysOutOfTheScores),
                         [](const auto& test) { return Describe(test.param); });

// --- games that are not submitted ---

TEST_F(EndOfGameChain, WritesNoScoreWhenTheLastMoveIsTakenBack) {
  ExpectWindow("frmWin", Way::OK);
  ExpectWindow("frmGameOver", Way::Undo);
  FinishTheTour();
  EXPECT_EQ(State().MoveCount, 63);
  EXPECT_FALSE(State().NoScoreGame);
  EXPECT_TRUE(Window().IsClockEnabled());
  EXPECT_FALSE(QFile::exists(ProgramFile("Scores.dat")));
}

TEST_F(EndOfGameChain, BeginsAgainWhenTheMoveIsMadeAgain) {
  ExpectWindow("frmWin", Way::OK);
  ExpectWindow("frmGameOver", Way::Undo);
  FinishTheTour();
  ExpectWindow("frmWin", Way::OK);
  ExpectWindow("frmGameOver", Way::Main);
  ExpectScores(Way::NewGame, NameIs::Typed);
  Choose("mnuEditRedo");
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(FirstHighScore().name, "Ann");
  ExpectGameAfter(Way::NewGame);
  EXPECT_FALSE(MenuItem("mnuEditRedo").isEnabled());
}

TEST_F(EndOfGameChain, OffersAGameToTheScoresOnlyOnce) {
  ExpectWindow("frmWin", Way::OK);
  ExpectWindow("frmGameOver", Way::Main);
  ExpectScores(Way::Close, NameIs::Typed);
  FinishTheTour();
  Choose("mnuEditUndo");
  ExpectWindow("frmGameOver", Way::CloseBox);
  ExpectReplay();
  Choose("mnuEditRedo");
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(RowsFrom(KeptFile(ProgramFile("Scores.dat")).Values(), ScoreList::High)[1].moves, "");
}

TEST_F(EndOfGameChain, ShowsNoFireworkForADeadEnd) {
  Open();
  ExpectWindow("frmGameOver", Way::Main);
  ExpectScores(Way::Close, NameIs::Typed);
  PlayOnBoard(Games::DeadEndAfter32);
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(RowsFrom(KeptFile(ProgramFile("Scores.dat")).Values(), ScoreList::Low)[0].moves, "32");
}
