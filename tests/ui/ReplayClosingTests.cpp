#include "tests/ui/ReplayTest.h"
#include "ui/commands/Replay.h"

namespace {

const std::string Question = "ask End Replay|Would you like to skip to the end?";

class ReplayClosing : public ReplayTest {
 protected:
  // Closes the window and answers the question that is asked before the end.
  void Close(frmReplay& replay, PlayerSays answer) {
    window.answers = {answer};
    TakeLog();
    replay.cmdClose_Click();
    const Steps log = TakeLog();
    EXPECT_EQ(log.front(), Question);
  }
};

}  // namespace

TEST_F(ReplayClosing, SkipsToTheEndForYes) {
  Watch(10, [&](frmReplay& replay) {
    replay.tmrAdvance_Timer();
    Close(replay, PlayerSays::Yes);
  });
  EXPECT_EQ(state.MoveCount, 10);
}

TEST_F(ReplayClosing, LeavesTheGameAtTheMoveShownForNo) {
  Watch(10, [&](frmReplay& replay) {
    replay.DoUpdateReplay(3);
    Close(replay, PlayerSays::No);
  });
  EXPECT_EQ(state.MoveCount, 4);
  EXPECT_EQ(MovesToRedo(state).size(), 6U);
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuEditRedo));
}

TEST_F(ReplayClosing, AsksNothingAtTheEnd) {
  Watch(10, [&](frmReplay& replay) {
    replay.cmdFinish_Click();
    TakeLog();
    replay.cmdClose_Click();
    EXPECT_EQ(TakeLog(), Steps{});
    EXPECT_FALSE(replay.isVisible());
  });
}

TEST_F(ReplayClosing, StopsTheTimer) {
  Watch(10, [&](frmReplay& replay) {
    Close(replay, PlayerSays::No);
    EXPECT_FALSE(Shown(replay).Timer().isActive());
  });
}

TEST_F(ReplayClosing, KeepsTheSpeedOfAnAutomaticReplay) {
  Watch(10, [&](frmReplay& replay) { Shown(replay).Bar().setValue(13); });
  EXPECT_EQ(Kept("Advance Speed"), "13");
  EXPECT_EQ(Kept("Advancement"), "0");
}

TEST_F(ReplayClosing, KeepsTheSpeedOfAManualReplay) {
  Watch(10, [&](frmReplay& replay) {
    Shown(replay).Bar().setValue(13);
    Shown(replay).Manual().click();
    Shown(replay).Bar().setValue(2);
  });
  EXPECT_EQ(Kept("Advance Speed"), "13");
  EXPECT_EQ(Kept("Advancement"), "1");
}

TEST_F(ReplayClosing, KeepsTheTextOfASpeedThatWasNotTouched) {
  Keep("0", "1");
  Watch(10, [](frmReplay&) {});
  EXPECT_EQ(Kept("Advance Speed"), "0");
}

TEST_F(ReplayClosing, SaysNothingWhenTheSettingsCannotBeKept) {
  globals.IniFile = KeptFile(FilePath("no such folder/GallopadeNova.ini"));
  Watch(10, [&](frmReplay& replay) {
    Close(replay, PlayerSays::No);
    EXPECT_FALSE(replay.isVisible());
  });
}

TEST_F(ReplayClosing, LetsPlayGoOnFromTheMoveShown) {
  Watch(10, [&](frmReplay& replay) { replay.DoUpdateReplay(3); });
  EXPECT_FALSE(state.ApplyingMoves);
  EXPECT_TRUE(window.IsClockEnabled());
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSave));
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSaveReplay));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileAutoplay));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSolve));
  Click("E8");
  EXPECT_EQ(state.MoveCount, 5);
}

TEST_F(ReplayClosing, LeavesAFinishedGameFinished) {
  Begin();
  windows.scoresAnswer = ScoresAnswer::Close;
  PlaySquares(game, Games::DeadEndAfter20);
  Watch([](frmReplay& replay) { replay.cmdFinish_Click(); });
  EXPECT_EQ(state.MoveCount, 20);
  EXPECT_FALSE(state.ApplyingMoves);
  EXPECT_FALSE(window.IsClockEnabled());
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSave));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSaveReplay));
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileAutoplay));
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSolve));
}

TEST_F(ReplayClosing, ShowsNoEndOfTheGameWhileItPlays) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  TakeLog();
  Watch([](frmReplay& replay) { replay.cmdFinish_Click(); });
  for (const std::string& line : TakeLog()) EXPECT_FALSE(line.starts_with("EndGame")) << line;
}

TEST_F(ReplayClosing, NeedsNoReplayWhenTheMainWindowIsToBeClosed) {
  Begin();
  PlayTour(game, 10);
  window.Guard().SetCloseRequested(true);
  TakeLog();
  mnuViewReplay_Click(context);
  for (const std::string& line : TakeLog()) EXPECT_FALSE(line.starts_with("show")) << line;
  EXPECT_EQ(state.MoveCount, 10);
  EXPECT_FALSE(state.ApplyingMoves);
}

TEST_F(ReplayClosing, StopsTheClockBeforeTheGameIsRewound) {
  Begin();
  PlayTour(game, 3);
  TakeLog();
  mnuViewReplay_Click(context);
  const Steps log = TakeLog();
  EXPECT_EQ(log.front(), "clock off");
  EXPECT_EQ(std::count(log.begin(), log.end(), "DoEvents"), 2);
  EXPECT_EQ(std::count(log.begin(), log.end(), "show frmReplay 3"), 1);
  EXPECT_EQ(log.back(), "CatchUpOnResize");
}
