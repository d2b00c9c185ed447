#include "tests/ui/ReplayTest.h"

namespace {

// What happens while the knight is on a long walk.
class ReplayWalk : public ReplayTest {
 protected:
  ReplayWalk() { Keep("7", "1"); }
};

}  // namespace

TEST_F(ReplayWalk, TurnsToTheMoveSoughtLast) {
  Watch(40, [&](frmReplay& replay) {
    WhileWalking([&] { Shown(replay).Bar().setValue(3); });
    Shown(replay).Bar().setValue(40);
    EXPECT_EQ(state.MoveCount, 3);
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWalk, NeverStepsInsideAStep) {
  Watch(40, [&](frmReplay& replay) {
    WhileWalking([&] {
      const int before = state.MoveCount;
      replay.DoUpdateReplay(5);
      replay.cmdFinish_Click();
      replay.cmdRestart_Click();
      replay.cmdAdvancePause_Click();
      EXPECT_EQ(state.MoveCount, before);
    });
    Shown(replay).Bar().setValue(20);
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWalk, EndsAtTheEndWhenFinishIsPressed) {
  Watch(40, [&](frmReplay& replay) {
    WhileWalking([&] { replay.cmdFinish_Click(); });
    Shown(replay).Bar().setValue(20);
    EXPECT_EQ(state.MoveCount, 40);
    EXPECT_FALSE(Shown(replay).IsOn("cmdFinish"));
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWalk, TurnsBackWhenRestartIsPressed) {
  Watch(40, [&](frmReplay& replay) {
    WhileWalking([&] { replay.cmdRestart_Click(); });
    replay.cmdFinish_Click();
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_TRUE(Shown(replay).IsOn("cmdFinish"));
    EXPECT_FALSE(Shown(replay).IsOn("cmdRestart"));
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWalk, AdvancesFromTheFirstSquareWhenRestartIsPressed) {
  Watch(40, [&](frmReplay& replay) {
    Shown(replay).Automatic().click();
    WhileWalking([&] { replay.cmdRestart_Click(); });
    replay.cmdFinish_Click();
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_TRUE(Shown(replay).Timer().isActive());
    EXPECT_EQ(Shown(replay).Caption(), "P&ause");
  });
}

TEST_F(ReplayWalk, RunsAgainOnlyWhenItIsBackOnTheFirstSquare) {
  Watch(40, [&](frmReplay& replay) {
    Shown(replay).Automatic().click();
    Shown(replay).Button("cmdAdvancePause").click();
    replay.DoUpdateReplay(20);
    WhileWalking([&] {
      EXPECT_FALSE(Shown(replay).Timer().isActive());
      EXPECT_EQ(Shown(replay).Caption(), "St&art");
    });
    replay.cmdRestart_Click();
    EXPECT_TRUE(Shown(replay).Timer().isActive());
    EXPECT_EQ(Shown(replay).Caption(), "P&ause");
  });
}

TEST_F(ReplayWalk, HasItsCaptionChangedOnlyWhenItIsFinished) {
  Watch(40, [&](frmReplay& replay) {
    Shown(replay).Automatic().click();
    Shown(replay).Button("cmdAdvancePause").click();
    WhileWalking([&] { EXPECT_EQ(Shown(replay).Caption(), "St&art"); });
    replay.cmdFinish_Click();
    EXPECT_EQ(Shown(replay).Caption(), "P&ause");
  });
}

TEST_F(ReplayWalk, ShowsTheEndWhenThePlayerSkipsThereAtClosing) {
  Watch(40, [&](frmReplay& replay) {
    Shown(replay).Automatic().click();
    Shown(replay).Button("cmdAdvancePause").click();
    window.answers = {PlayerSays::Yes};
    replay.cmdClose_Click();
    EXPECT_TRUE(Agrees(replay));
    EXPECT_EQ(Shown(replay).Text("lblMoveValue"), "40");
    EXPECT_FALSE(Shown(replay).IsOn("cmdFinish"));
    EXPECT_EQ(Shown(replay).Caption(), "P&ause");
  });
}

TEST_F(ReplayWalk, IsNotDisturbedByATick) {
  Watch(40, [&](frmReplay& replay) {
    WhileWalking([&] {
      Shown(replay).Automatic().click();
      replay.tmrAdvance_Timer();
    });
    Shown(replay).Bar().setValue(20);
    EXPECT_EQ(state.MoveCount, 20);
    EXPECT_TRUE(Shown(replay).Timer().isActive());
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWalk, StopsWhereManualIsChosen) {
  Watch(40, [&](frmReplay& replay) {
    Shown(replay).Automatic().click();
    WhileWalking([&] { Shown(replay).Manual().click(); });
    replay.cmdFinish_Click();
    EXPECT_EQ(state.MoveCount, 2);
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWalk, EndsBeforeTheQuestionAtClosing) {
  Watch(40, [&](frmReplay& replay) {
    WhileWalking([&] {
      replay.cmdClose_Click();
      EXPECT_TRUE(replay.isVisible());
      TakeLog();
    });
    window.answers = {PlayerSays::No};
    Shown(replay).Bar().setValue(20);
    EXPECT_EQ(TakeLog(), (Steps{"ask End Replay|Would you like to skip to the end?"}));
    EXPECT_FALSE(replay.isVisible());
    EXPECT_EQ(state.MoveCount, 2);
  });
}

TEST_F(ReplayWalk, HeedsNothingMoreOnceItIsClosing) {
  Watch(40, [&](frmReplay& replay) {
    WhileWalking([&] {
      replay.cmdClose_Click();
      replay.cmdFinish_Click();
      replay.tmrAdvance_Timer();
      replay.cmdClose_Click();
    });
    window.answers = {PlayerSays::No};
    Shown(replay).Bar().setValue(20);
    EXPECT_EQ(state.MoveCount, 2);
  });
}

TEST_F(ReplayWalk, GoesToTheEndAtClosingWhateverIsPressed) {
  Watch(40, [&](frmReplay& replay) {
    WhileWalking([&] {
      replay.cmdRestart_Click();
      Shown(replay).Bar().setValue(4);
      replay.cmdClose_Click();
    });
    window.answers = {PlayerSays::Yes};
    replay.cmdClose_Click();
    EXPECT_FALSE(replay.isVisible());
    EXPECT_EQ(state.MoveCount, 40);
  });
}
