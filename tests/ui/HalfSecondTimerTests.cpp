#include <QTest>
#include <gtest/gtest.h>

#include "ui/windows/game/HalfSecondTimer.h"

namespace {

// A timer by a clock that the test turns.
class HalfSecondTimerTest : public testing::Test {
 protected:
  // So much time passes while the program is busy.
  void Pass(int milliseconds) { now += milliseconds; }
  // So much time passes, and the program finds out.
  void Wait(int milliseconds) {
    Pass(milliseconds);
    timer.CountDueTicks();
  }
  void Stop() { timer.SetEnabled(false); }
  void Start() { timer.SetEnabled(true); }

  std::int64_t now = 123456;
  int ticks = 0;
  std::function<void()> onTick = [] {};
  HalfSecondTimer timer{[this] {
                          ++ticks;
                          onTick();
                        },
                        [this] { return now; }};
};

}  // namespace

TEST_F(HalfSecondTimerTest, IsDisabledAtFirst) {
  EXPECT_FALSE(timer.IsEnabled());
  Wait(5000);
  EXPECT_EQ(ticks, 0);
}

TEST_F(HalfSecondTimerTest, TicksOnceForEveryHalfSecond) {
  Start();
  Wait(499);
  EXPECT_EQ(ticks, 0);
  Wait(1);
  EXPECT_EQ(ticks, 1);
  for (int i = 0; i < 10; ++i) Wait(500);
  EXPECT_EQ(ticks, 11);
}

TEST_F(HalfSecondTimerTest, LosesNoTickWhileTheProgramIsBusy) {
  Start();
  Wait(1700);
  EXPECT_EQ(ticks, 3);
  Wait(300);
  EXPECT_EQ(ticks, 4);
}

TEST_F(HalfSecondTimerTest, CountsWhatIsDueWhenItIsDisabled) {
  Start();
  Pass(1200);
  Stop();
  EXPECT_EQ(ticks, 2);
}

TEST_F(HalfSecondTimerTest, CountsOnlyWhileItIsEnabled) {
  Start();
  Wait(500);
  Stop();
  Wait(5000);
  EXPECT_EQ(ticks, 1);
  Start();
  EXPECT_EQ(ticks, 1);
  Wait(500);
  EXPECT_EQ(ticks, 2);
}

TEST_F(HalfSecondTimerTest, LosesNothingOfAHalfSecondInWhichItIsDisabledAndEnabled) {
  Start();
  for (int i = 0; i < 10; ++i) {
    Wait(300);
    Stop();
    Wait(50);
    Start();
  }
  EXPECT_EQ(ticks, 6);
}

TEST_F(HalfSecondTimerTest, GoesOnWithItsHalfSecondWhenItIsEnabledTwice) {
  Start();
  Wait(400);
  Start();
  Wait(100);
  EXPECT_EQ(ticks, 1);
}

TEST_F(HalfSecondTimerTest, BeginsAHalfSecondAnew) {
  Start();
  Pass(700);
  timer.BeginAnew();
  Wait(499);
  EXPECT_EQ(ticks, 0);
  Stop();
  timer.BeginAnew();
  Start();
  Wait(499);
  EXPECT_EQ(ticks, 0);
  Wait(1);
  EXPECT_EQ(ticks, 1);
}

TEST_F(HalfSecondTimerTest, MayBeDisabledByATick) {
  onTick = [this] { Stop(); };
  Start();
  Wait(700);
  EXPECT_FALSE(timer.IsEnabled());
  EXPECT_EQ(ticks, 1);
}

TEST_F(HalfSecondTimerTest, MayBeDisabledAndEnabledByATick) {
  onTick = [this] {
    Stop();
    Start();
  };
  Start();
  Wait(1600);
  EXPECT_EQ(ticks, 3);
  Wait(400);
  EXPECT_EQ(ticks, 4);
}

TEST(HalfSecondTimerByTheSystemsClock, TicksByItself) {
  int ticks = 0;
  HalfSecondTimer timer([&] { ++ticks; });
  timer.SetEnabled(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks >= 2; }));
}
