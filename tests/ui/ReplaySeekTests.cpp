#include "tests/ui/ReplayTest.h"

namespace {

// The replay in its manual mode.
class ReplaySeek : public ReplayTest {
 protected:
  ReplaySeek() { Keep("7", "1"); }
};

}  // namespace

TEST_F(ReplaySeek, AdvancesOneMoveAtAPress) {
  Watch(3, [&](frmReplay& replay) {
    replay.cmdAdvancePause_Click();
    EXPECT_EQ(state.MoveCount, 2);
    EXPECT_TRUE(Agrees(replay));
    replay.cmdAdvancePause_Click();
    replay.cmdAdvancePause_Click();
    EXPECT_EQ(state.MoveCount, 3);
    EXPECT_FALSE(Shown(replay).IsOn("cmdAdvancePause"));
    EXPECT_FALSE(Shown(replay).IsOn("cmdFinish"));
  });
}

TEST_F(ReplaySeek, GoesForwardToTheMoveSought) {
  Watch(40, [&](frmReplay& replay) {
    Shown(replay).Bar().setValue(33);
    EXPECT_EQ(state.MoveCount, 33);
    EXPECT_EQ(Shown(replay).Text("lblPositionValue"), "A4");
    EXPECT_TRUE(Shown(replay).IsOn("cmdRestart"));
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplaySeek, GoesBackOneMoveAtATime) {
  Watch(10, [&](frmReplay& replay) {
    Shown(replay).Bar().setValue(8);
    TakeLog();
    Shown(replay).Bar().setValue(5);
    EXPECT_EQ(state.MoveCount, 5);
    const Steps log = TakeLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "DoEvents"), 3);
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplaySeek, GoesOnFromTheEnd) {
  Watch(10, [&](frmReplay& replay) {
    Shown(replay).Bar().setValue(10);
    EXPECT_FALSE(Shown(replay).IsOn("cmdFinish"));
    Shown(replay).Bar().setValue(9);
    EXPECT_TRUE(Shown(replay).IsOn("cmdFinish"));
    EXPECT_TRUE(Shown(replay).IsOn("cmdAdvancePause"));
    EXPECT_TRUE(Shown(replay).IsOn("cmdRestart"));
    Shown(replay).Bar().setValue(1);
    EXPECT_FALSE(Shown(replay).IsOn("cmdRestart"));
  });
}

TEST_F(ReplaySeek, FinishesAndRestartsWithTheBar) {
  Watch(10, [&](frmReplay& replay) {
    replay.cmdFinish_Click();
    EXPECT_EQ(Shown(replay).Bar().value(), 10);
    EXPECT_TRUE(Agrees(replay));
    replay.cmdRestart_Click();
    EXPECT_EQ(Shown(replay).Bar().value(), 1);
    EXPECT_FALSE(Shown(replay).Timer().isActive());
    EXPECT_TRUE(Shown(replay).IsOn("cmdAdvancePause"));
    EXPECT_FALSE(Shown(replay).IsOn("cmdRestart"));
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplaySeek, RestartsWithTheMenusOfARestartedGame) {
  Watch(10, [&](frmReplay& replay) {
    replay.cmdFinish_Click();
    TakeLog();
    replay.cmdRestart_Click();
    const Steps log = TakeLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "mnuEditHistory off"), 1);
  });
}

TEST_F(ReplaySeek, KeepsTheSpeedWhileItSeeks) {
  Watch(10, [&](frmReplay& replay) {
    const Shown shown(replay);
    shown.Bar().setValue(4);
    shown.Automatic().click();
    EXPECT_EQ(shown.Bar().value(), 7);
    EXPECT_EQ(shown.Text("lblSpeedSeekValue"), "0.7 sec.");
    EXPECT_EQ(state.MoveCount, 4);
    shown.Bar().setValue(12);
    shown.Manual().click();
    EXPECT_EQ(shown.Tag(), "12");
    EXPECT_EQ(shown.Bar().value(), 4);
    EXPECT_EQ(state.MoveCount, 4);
  });
}

TEST_F(ReplaySeek, KeepsTheSpeedWhenManualIsChosenTwice) {
  Watch(10, [&](frmReplay& replay) {
    Shown(replay).Bar().setValue(4);
    Shown(replay).Manual().click();
    EXPECT_EQ(Shown(replay).Tag(), "7");
  });
}

TEST_F(ReplaySeek, MovesNothingWhenTheBarChangesItsMeaning) {
  Watch(10, [&](frmReplay& replay) {
    const Shown shown(replay);
    shown.Automatic().click();
    shown.Bar().setValue(15);
    TakeLog();
    shown.Manual().click();
    shown.Automatic().click();
    EXPECT_EQ(TakeLog(), Steps{});
  });
}

TEST_F(ReplaySeek, AdvancesAtOnceWhenAutomaticIsChosen) {
  Watch(10, [&](frmReplay& replay) {
    Shown(replay).Automatic().click();
    EXPECT_TRUE(Shown(replay).Timer().isActive());
    EXPECT_EQ(Shown(replay).Caption(), "P&ause");
    EXPECT_EQ(Shown(replay).Text("lblSpeedSeek"), "Speed:");
  });
}

TEST_F(ReplaySeek, DoesNotAdvanceWhenAutomaticIsChosenAtTheEnd) {
  Watch(10, [&](frmReplay& replay) {
    replay.cmdFinish_Click();
    Shown(replay).Automatic().click();
    EXPECT_FALSE(Shown(replay).Timer().isActive());
    EXPECT_EQ(Shown(replay).Caption(), "P&ause");
    EXPECT_EQ(state.MoveCount, 10);
  });
}

TEST_F(ReplaySeek, KeepsThePlaceInALongGameWhenTheBarBecomesShort) {
  Watch(40, [&](frmReplay& replay) {
    Shown(replay).Bar().setValue(38);
    Shown(replay).Automatic().click();
    EXPECT_EQ(state.MoveCount, 38);
    EXPECT_TRUE(Agrees(replay));
    Shown(replay).Manual().click();
    EXPECT_EQ(state.MoveCount, 38);
    EXPECT_TRUE(Agrees(replay));
  });
}
