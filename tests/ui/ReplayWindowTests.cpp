#include <QTest>

#include "tests/ui/ReplayTest.h"

namespace {

class ReplayWindow : public ReplayTest {};

struct SpeedCase {
  const char* kept;
  int bar;
  const char* label;
  int interval;
};

class ReplaySpeed : public ReplayTest, public testing::WithParamInterface<SpeedCase> {};

}  // namespace

TEST_F(ReplayWindow, BeginsOnTheFirstSquare) {
  Watch(10, [&](frmReplay& replay) {
    EXPECT_EQ(replay.windowTitle(), "Replay");
    EXPECT_EQ(Shown(replay).Text("lblMoveValue"), "1");
    EXPECT_EQ(Shown(replay).Text("lblPositionValue"), "A8");
    EXPECT_EQ(state.MoveCount, 1);
  });
}

TEST_F(ReplayWindow, OffersNoRestartOnTheFirstSquare) {
  for (const char* advancement : {"0", "1"}) {
    Keep("5", advancement);
    Watch(10, [&](frmReplay& replay) {
      EXPECT_FALSE(Shown(replay).IsOn("cmdRestart"));
      EXPECT_TRUE(Shown(replay).IsOn("cmdAdvancePause"));
      EXPECT_TRUE(Shown(replay).IsOn("cmdFinish"));
    });
  }
}

TEST_F(ReplayWindow, AdvancesByItselfWhenNothingIsKept) {
  Watch(10, [&](frmReplay& replay) {
    const Shown shown(replay);
    EXPECT_TRUE(shown.Automatic().isChecked());
    EXPECT_TRUE(shown.Timer().isActive());
    EXPECT_EQ(shown.Timer().interval(), 500);
    EXPECT_EQ(shown.Caption(), "P&ause");
    EXPECT_EQ(shown.Text("lblSpeedSeek"), "Speed:");
    EXPECT_EQ(shown.Text("lblSpeedSeekValue"), "0.5 sec.");
    EXPECT_EQ(shown.Bar().minimum(), 1);
    EXPECT_EQ(shown.Bar().maximum(), 20);
    EXPECT_EQ(shown.Bar().pageStep(), 5);
  });
}

TEST_F(ReplayWindow, SeeksWhenManualAdvancementIsKept) {
  Keep("7.5x", "1");
  Watch(10, [&](frmReplay& replay) {
    const Shown shown(replay);
    EXPECT_TRUE(shown.Manual().isChecked());
    EXPECT_FALSE(shown.Timer().isActive());
    EXPECT_EQ(shown.Caption(), "&Advance");
    EXPECT_EQ(shown.Text("lblSpeedSeek"), "Seek:");
    EXPECT_EQ(shown.Text("lblSpeedSeekValue"), "1");
    EXPECT_EQ(shown.Bar().minimum(), 1);
    EXPECT_EQ(shown.Bar().maximum(), 10);
    EXPECT_EQ(shown.Bar().pageStep(), 10);
    EXPECT_EQ(shown.Tag(), "7.5x");
  });
}

TEST_P(ReplaySpeed, IsReadAndShown) {
  const SpeedCase& speed = GetParam();
  Keep(speed.kept, "0");
  Watch(10, [&](frmReplay& replay) {
    const Shown shown(replay);
    EXPECT_EQ(shown.Bar().value(), speed.bar);
    EXPECT_EQ(shown.Text("lblSpeedSeekValue"), speed.label);
    EXPECT_EQ(shown.Timer().interval(), speed.interval);
    EXPECT_TRUE(shown.Timer().isActive());
  });
}

INSTANTIATE_TEST_SUITE_P(
    Kept, ReplaySpeed,
    testing::Values(SpeedCase{"1", 1, "0.1 sec.", 100}, SpeedCase{"5", 5, "0.5 sec.", 500},
                    SpeedCase{"10", 10, "1 sec.", 1000}, SpeedCase{"15", 15, "1.5 sec.", 1500},
                    SpeedCase{"20", 20, "2 sec.", 2000}, SpeedCase{"0", 1, "0.1 sec.", 100},
                    SpeedCase{"fast", 1, "0.1 sec.", 100}, SpeedCase{" 7 ", 7, "0.7 sec.", 700},
                    SpeedCase{"-1", 5, "0.5 sec.", 500}, SpeedCase{"21", 5, "0.5 sec.", 500},
                    SpeedCase{"1e99", 1, "0.1 sec.", 100},
                    SpeedCase{"99999999999999999999", 5, "0.5 sec.", 500}));

TEST_F(ReplayWindow, MakesOneMoveATick) {
  Watch(10, [&](frmReplay& replay) {
    replay.tmrAdvance_Timer();
    EXPECT_EQ(state.MoveCount, 2);
    EXPECT_EQ(Shown(replay).Text("lblPositionValue"), "C7");
    EXPECT_TRUE(Shown(replay).IsOn("cmdRestart"));
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWindow, EndsWithTheLastMove) {
  Watch(3, [&](frmReplay& replay) {
    replay.tmrAdvance_Timer();
    replay.tmrAdvance_Timer();
    const Shown shown(replay);
    EXPECT_EQ(state.MoveCount, 3);
    EXPECT_FALSE(shown.Timer().isActive());
    EXPECT_FALSE(shown.IsOn("cmdAdvancePause"));
    EXPECT_FALSE(shown.IsOn("cmdFinish"));
    EXPECT_TRUE(shown.IsOn("cmdRestart"));
    replay.tmrAdvance_Timer();
    EXPECT_EQ(state.MoveCount, 3);
  });
}

TEST_F(ReplayWindow, EndsWithTheFirstTickOverAGameOfOneSquare) {
  Watch(1, [&](frmReplay& replay) {
    EXPECT_TRUE(Shown(replay).Timer().isActive());
    replay.tmrAdvance_Timer();
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_FALSE(Shown(replay).Timer().isActive());
    EXPECT_FALSE(Shown(replay).IsOn("cmdAdvancePause"));
    EXPECT_FALSE(Shown(replay).IsOn("cmdFinish"));
  });
}

TEST_F(ReplayWindow, CanBeRestartedOverAGameOfOneSquare) {
  Watch(1, [&](frmReplay& replay) {
    replay.tmrAdvance_Timer();
    replay.cmdRestart_Click();
    EXPECT_TRUE(Shown(replay).Timer().isActive());
    EXPECT_TRUE(Shown(replay).IsOn("cmdAdvancePause"));
    EXPECT_TRUE(Shown(replay).IsOn("cmdFinish"));
    EXPECT_FALSE(Shown(replay).IsOn("cmdRestart"));
    replay.tmrAdvance_Timer();
    EXPECT_FALSE(Shown(replay).Timer().isActive());
    EXPECT_FALSE(Shown(replay).IsOn("cmdFinish"));
  });
}

TEST_F(ReplayWindow, CanSeekNothingInAGameOfOneSquare) {
  Keep("5", "1");
  Watch(1, [&](frmReplay& replay) {
    EXPECT_EQ(Shown(replay).Bar().maximum(), 1);
    EXPECT_FALSE(Shown(replay).IsOn("cmdAdvancePause"));
    EXPECT_FALSE(Shown(replay).IsOn("cmdFinish"));
    replay.cmdRestart_Click();
    EXPECT_EQ(state.MoveCount, 1);
  });
}

TEST_F(ReplayWindow, GoesNoFurtherThanTheGameDidWhenThereIsMoreToRedo) {
  Begin();
  PlayTour(game, 10);
  for (int i = 0; i < 4; ++i) game.mnuEditUndo_Click();
  Watch([&](frmReplay& replay) {
    replay.cmdFinish_Click();
    EXPECT_EQ(state.MoveCount, 6);
    replay.DoUpdateReplay(5);
    EXPECT_EQ(state.MoveCount, 6);
  });
  EXPECT_EQ(MovesToRedo(state).size(), 4U);
}

TEST_F(ReplayWindow, KeepsTheFirstSquareThatThePlayerChose) {
  Begin(FirstSquare::PlayersChoice);
  PlayTour(game, 5);
  Watch([&](frmReplay& replay) {
    replay.DoUpdateReplay(-3);
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWindow, PausesAndStarts) {
  Watch(10, [&](frmReplay& replay) {
    const Shown shown(replay);
    replay.cmdAdvancePause_Click();
    EXPECT_FALSE(shown.Timer().isActive());
    EXPECT_EQ(shown.Caption(), "St&art");
    replay.cmdAdvancePause_Click();
    EXPECT_TRUE(shown.Timer().isActive());
    EXPECT_EQ(shown.Caption(), "P&ause");
  });
}

TEST_F(ReplayWindow, TakesANewSpeedAtOnce) {
  Watch(10, [&](frmReplay& replay) {
    Shown(replay).Bar().setValue(15);
    EXPECT_EQ(Shown(replay).Timer().interval(), 1500);
    EXPECT_EQ(Shown(replay).Text("lblSpeedSeekValue"), "1.5 sec.");
    EXPECT_EQ(state.MoveCount, 1);
  });
}

TEST_F(ReplayWindow, FinishesAnAutomaticReplay) {
  Watch(10, [&](frmReplay& replay) {
    replay.cmdAdvancePause_Click();
    replay.cmdFinish_Click();
    const Shown shown(replay);
    EXPECT_EQ(state.MoveCount, 10);
    EXPECT_FALSE(shown.Timer().isActive());
    EXPECT_EQ(shown.Caption(), "P&ause");
    EXPECT_FALSE(shown.IsOn("cmdAdvancePause"));
    EXPECT_TRUE(shown.IsOn("cmdRestart"));
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWindow, StartsAgainByItself) {
  Watch(10, [&](frmReplay& replay) {
    replay.cmdFinish_Click();
    replay.cmdRestart_Click();
    const Shown shown(replay);
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_TRUE(shown.Timer().isActive());
    EXPECT_EQ(shown.Caption(), "P&ause");
    EXPECT_TRUE(shown.IsOn("cmdAdvancePause"));
    EXPECT_TRUE(shown.IsOn("cmdFinish"));
    EXPECT_FALSE(shown.IsOn("cmdRestart"));
    EXPECT_TRUE(Agrees(replay));
  });
}

TEST_F(ReplayWindow, ClosesByEscapeToo) {
  Watch(10, [&](frmReplay& replay) {
    window.answers = {PlayerSays::Yes};
    QTest::keyClick(&replay, Qt::Key_Escape);
    EXPECT_FALSE(replay.isVisible());
    EXPECT_EQ(state.MoveCount, 10);
  });
}

TEST_F(ReplayWindow, HasNoTwoKeysAlike) {
  Watch(10, [&](frmReplay& replay) {
    QStringList keys;
    for (const auto* button : replay.findChildren<QAbstractButton*>()) {
      keys += button->shortcut().toString();
    }
    EXPECT_EQ(keys.size(), 6);
    EXPECT_EQ(keys.removeDuplicates(), 0);
  });
}
