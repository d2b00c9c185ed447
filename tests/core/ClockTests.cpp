#include <limits>

#include "core/TimeString.h"
#include "tests/support/GameTest.h"

namespace {

class Clock : public GameTest {
 protected:
  void Tick(int times) {
    for (int i = 0; i < times; ++i) game.tmrTime_Timer();
  }
};

class ClockOnResize : public GameTest {
 protected:
  // The steps of a change of size, minimised or not, with or without a dialog open.
  Steps Resize(bool minimised = false, bool resting = false) {
    window.log.clear();
    game.ClockOnResize(minimised, resting);
    return TakeLog();
  }
  const Steps clockOn{"clock on"};
  const Steps clockOff{"clock off"};
  const Steps nothing{};
};

}  // namespace

TEST(TimeString, CountsHalfSeconds) {
  EXPECT_EQ(TimeString(0), "0:00:00.0");
  EXPECT_EQ(TimeString(1), "0:00:00.5");
  EXPECT_EQ(TimeString(3), "0:00:01.5");
  EXPECT_EQ(TimeString(7321), "1:01:00.5");
}

TEST(TimeString, CarriesSecondsAndMinutes) {
  EXPECT_EQ(TimeString(119), "0:00:59.5");
  EXPECT_EQ(TimeString(120), "0:01:00.0");
  EXPECT_EQ(TimeString(7199), "0:59:59.5");
  EXPECT_EQ(TimeString(7200), "1:00:00.0");
}

TEST(TimeString, GivesHoursAsManyDigitsAsTheyNeed) {
  EXPECT_EQ(TimeString(72000), "10:00:00.0");
  EXPECT_EQ(TimeString(720000), "100:00:00.0");
  EXPECT_EQ(TimeString(std::numeric_limits<std::int32_t>::max()), "298261:37:03.5");
}

TEST_F(Clock, RestsUntilThePlayersFirstMove) {
  Begin();
  EXPECT_FALSE(window.IsClockEnabled());
  ClickOn("C7");
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(Clock, RunsFromTheSquareThatThePlayerPicks) {
  Begin(StartOnPlayersChoice);
  EXPECT_FALSE(window.IsClockEnabled());
  ClickOn("E4");
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(Clock, StopsAtTheEndOfTheGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(Clock, CountsEachTick) {
  Begin();
  Tick(7);
  EXPECT_EQ(state.ElapsedHalfSeconds, 7);
}

TEST_F(Clock, StandsStillAtItsHighestCount) {
  Begin();
  state.ElapsedHalfSeconds = std::numeric_limits<std::int32_t>::max() - 1;
  Tick(3);
  EXPECT_EQ(state.ElapsedHalfSeconds, std::numeric_limits<std::int32_t>::max());
}

TEST_F(Clock, CountsWhileTheTimeIsNotShown) {
  Begin();
  options.ShowTime = false;
  Tick(7);
  EXPECT_EQ(state.ElapsedHalfSeconds, 7);
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Clock, IsStoppedForADialogThatLearnsWhetherItRan) {
  Begin();
  EXPECT_FALSE(game.DoTiming());
  ClickOn("C7");
  EXPECT_TRUE(game.DoTiming());
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(Clock, IsResetWithTheCaption) {
  Begin();
  ClickOn("C7");
  Tick(7);
  window.log.clear();
  game.ResetClock();
  EXPECT_EQ(TakeLog(), (Steps{"caption Gallopade Nova: 2 - 0:00:00.0", "clock off"}));
  EXPECT_EQ(state.ElapsedHalfSeconds, 0);
}

TEST_F(ClockOnResize, RunsDuringAGame) {
  Begin();
  ClickOn("C7");
  EXPECT_EQ(Resize(), clockOn);
}

TEST_F(ClockOnResize, DoesNotRunBeforeThePlayersOwnFirstMove) {
  Begin();
  EXPECT_EQ(Resize(), nothing);
  Begin(StartOnPlayersChoice);
  EXPECT_EQ(Resize(), nothing);
}

TEST_F(ClockOnResize, RunsOnceThePlayerHasPickedTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  ClickOn("E4");
  EXPECT_EQ(Resize(), clockOn);
}

TEST_F(ClockOnResize, GoesByHowTheGameBeganAndNotByTheSetting) {
  Begin();
  options.StartingPosition = StartOnPlayersChoice;
  EXPECT_EQ(Resize(), nothing);
}

TEST_F(ClockOnResize, StopsWhenTheWindowIsMinimised) {
  Begin();
  ClickOn("C7");
  EXPECT_EQ(Resize(true), clockOff);
}

TEST_F(ClockOnResize, StopsWhileTheProgramMakesMoves) {
  Begin();
  ClickOn("C7");
  state.ApplyingMoves = true;
  EXPECT_EQ(Resize(), clockOff);
}

TEST_F(ClockOnResize, RestsWhileADialogIsOpen) {
  Begin();
  ClickOn("C7");
  EXPECT_EQ(Resize(false, true), nothing);
}

TEST_F(ClockOnResize, RestsAfterTheEndOfTheGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_EQ(Resize(), nothing);
}
