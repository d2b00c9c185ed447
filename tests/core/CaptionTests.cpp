#include "core/NumberText.h"
#include "tests/support/GameTest.h"

namespace {

class Caption : public GameTest {
 protected:
  std::string With(bool score, bool time) {
    options.ShowScore = score;
    options.ShowTime = time;
    game.DoCaption();
    return window.Caption();
  }
};

}  // namespace

TEST_F(Caption, ShowsWhatThePlayerWantsToSee) {
  Begin();
  PlayTour(game, 12);
  state.ElapsedHalfSeconds = 415;
  EXPECT_EQ(With(true, true), "Gallopade Nova: 12 - 0:03:27.5");
  EXPECT_EQ(With(false, true), "Gallopade Nova - 0:03:27.5");
  EXPECT_EQ(With(true, false), "Gallopade Nova: 12");
  EXPECT_EQ(With(false, false), "Gallopade Nova");
}

TEST(NumberInAText, HasABlankOrASignBeforeIt) {
  EXPECT_EQ(NumberText(12), " 12");
  EXPECT_EQ(NumberText(-12), "-12");
}

TEST_F(Caption, ShowsZeroMovesBeforeTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 0 - 0:00:00.0");
}

TEST_F(Caption, IsWrittenOnlyWhenItDiffers) {
  Begin();
  game.DoCaption();
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Caption, FollowsTheClock) {
  Begin();
  game.tmrTime_Timer();
  EXPECT_EQ(TakeLog(), Steps{"caption Gallopade Nova: 1 - 0:00:00.5"});
}

TEST_F(Caption, RestsWhileTheSolverRuns) {
  Begin();
  state.SolverRunning = true;
  game.tmrTime_Timer();
  game.ValidMove(2, 1);
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 1 - 0:00:00.0");
}

TEST_F(Caption, LosesAndRegainsTheScore) {
  Begin();
  game.mnuViewScore_Click();
  EXPECT_FALSE(options.ShowScore);
  EXPECT_EQ(TakeLog(), (Steps{"mnuViewScore unchecked", "caption Gallopade Nova - 0:00:00.0"}));
  game.mnuViewScore_Click();
  EXPECT_TRUE(options.ShowScore);
  EXPECT_EQ(TakeLog(), (Steps{"mnuViewScore checked", "caption Gallopade Nova: 1 - 0:00:00.0"}));
}

TEST_F(Caption, LosesAndRegainsTheTime) {
  Begin();
  game.mnuViewTime_Click();
  EXPECT_FALSE(options.ShowTime);
  EXPECT_EQ(TakeLog(), (Steps{"mnuViewTime unchecked", "caption Gallopade Nova: 1"}));
  game.mnuViewTime_Click();
  EXPECT_TRUE(options.ShowTime);
  EXPECT_EQ(TakeLog(), (Steps{"mnuViewTime checked", "caption Gallopade Nova: 1 - 0:00:00.0"}));
}

TEST_F(Caption, ShowsTheTimeUpToDateWhenItIsTurnedOnAgain) {
  Begin();
  game.mnuViewTime_Click();
  for (int tick = 0; tick < 9; ++tick) game.tmrTime_Timer();
  game.mnuViewTime_Click();
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 1 - 0:00:04.5");
}
