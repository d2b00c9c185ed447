#include <algorithm>
#include <memory>

#include <QApplication>
#include <QMenu>
#include <QProxyStyle>
#include <QWidget>
#include <gtest/gtest.h>

#include "tests/ui/HandClock.h"
#include "ui/application/DoEvents.h"

using namespace std::chrono_literals;

namespace {

class Pace : public testing::Test {
 protected:
  HandClock clock;
  PicturePace pace{clock.Clock()};
  QWidget widget;
  int shown = 0;
  std::unique_ptr<PacedPicture> picture =
      std::make_unique<PacedPicture>(pace, widget, [this] { ++shown; });

  void ChangeAndYield() {
    picture->Changed();
    DoEvents(pace);
  }

  // How often a walk of so many steps is waited for.
  int WaitsOfWalk(int steps, PicturePace::Time timeOfPicture) {
    WatchedWork walk(pace, steps);
    int waits = 0;
    for (int step = 0; step < steps; ++step) {
      if (!walk.EndStep(clock.Now())) continue;
      ++waits;
      clock.Turn(timeOfPicture);
    }
    return waits;
  }
};

// A style of a player who wants nothing to move.
class StillStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_Widget_Animation_Duration) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

TEST_F(Pace, ShowsAChangeAtOnceWhenNothingIsWatched) {
  picture->Changed();
  picture->Changed();
  EXPECT_EQ(shown, 2);
}

TEST_F(Pace, ShowsOnePictureARefreshDuringASearch) {
  const WatchedWork search(pace);
  for (int redraw = 0; redraw < 100; ++redraw) ChangeAndYield();
  EXPECT_EQ(shown, 1);
  clock.Turn(HandClock::Refresh);
  for (int redraw = 0; redraw < 100; ++redraw) ChangeAndYield();
  EXPECT_EQ(shown, 2);
}

TEST_F(Pace, ShowsTheLastChangeWithinOneRefresh) {
  const WatchedWork search(pace);
  ChangeAndYield();
  ChangeAndYield();
  clock.Turn(HandClock::Refresh);
  DoEvents(pace);
  EXPECT_EQ(shown, 2);
  clock.Turn(HandClock::Refresh);
  DoEvents(pace);
  EXPECT_EQ(shown, 2);
}

TEST_F(Pace, CompletesThePictureWhenTheWorkEnds) {
  {
    const WatchedWork search(pace);
    ChangeAndYield();
    ChangeAndYield();
    EXPECT_EQ(shown, 1);
  }
  EXPECT_EQ(shown, 2);
}

TEST_F(Pace, KeepsTheRefreshFromOneSearchToTheNext) {
  {
    const WatchedWork search(pace);
    ChangeAndYield();
  }
  const WatchedWork search(pace);
  ChangeAndYield();
  EXPECT_EQ(shown, 1);
}

TEST_F(Pace, ShowsNothingOfAWidgetThatIsGone) {
  const WatchedWork search(pace);
  ChangeAndYield();
  picture->Changed();
  picture.reset();
  clock.Turn(HandClock::Refresh);
  DoEvents(pace);
  pace.Complete();
  EXPECT_EQ(shown, 1);
}

TEST_F(Pace, ShowsWhatIsLateWhenAMenuOpensInTheMiddle) {
  const WatchedWork search(pace);
  ChangeAndYield();
  picture->Changed();
  QMenu menu;
  menu.addAction("An entry");
  int shownBehindTheMenu = 0;
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [&] {
    shownBehindTheMenu = shown;
    menu.close();
  });
  closer.start(1);
  menu.exec();
  EXPECT_EQ(shownBehindTheMenu, 2);
}

TEST_F(Pace, RunsWhatTheProgramSentItselfAtEveryYieldOfASearch) {
  const WatchedWork search(pace);
  int runs = 0;
  for (int redraw = 0; redraw < 10; ++redraw) {
    QMetaObject::invokeMethod(
        &widget, [&runs] { ++runs; }, Qt::QueuedConnection);
    DoEvents(pace);
    EXPECT_EQ(runs, redraw + 1);
  }
}

TEST_F(Pace, SeesToTimersOfASearchWithinAMillisecond) {
  const WatchedWork search(pace);
  DoEvents(pace);
  int ticks = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
  timer.start(0);
  clock.Turn(1ms);
  DoEvents(pace);
  EXPECT_EQ(ticks, 1);
}

TEST_F(Pace, PaintsNothingOfAHiddenWindow) {
  struct Window : QWidget {
    int paints = 0;
    void paintEvent(QPaintEvent*) override { ++paints; }
  } window;
  window.show();
  QCoreApplication::processEvents();
  window.hide();
  window.paints = 0;
  PacedPicture ofWindow(pace, window, [&window] { window.update(); });
  const WatchedWork search(pace);
  for (int redraw = 0; redraw < 10; ++redraw) {
    ofWindow.Changed();
    clock.Turn(HandClock::Refresh);
    DoEvents(pace);
  }
  EXPECT_EQ(window.paints, 0);
}

TEST_F(Pace, GivesEveryStepOfAShortWalkAPicture) {
  EXPECT_EQ(WaitsOfWalk(20, HandClock::Refresh), 20);
}

TEST_F(Pace, EndsAWalkWithinHalfASecond) {
  for (const auto timeOfPicture : {HandClock::Refresh, 2 * HandClock::Refresh}) {
    for (int steps = 1; steps <= 64; ++steps) {
      const PicturePace::Time begun = clock.Now();
      EXPECT_GE(WaitsOfWalk(steps, timeOfPicture), std::min(steps, 12)) << steps;
      EXPECT_LE(clock.Now() - begun, 500ms) << steps;
    }
  }
}

TEST_F(Pace, HasNothingToWaitForWhereTheStyleAnimatesNothing) {
  const QString usual = QApplication::style()->name();
  QApplication::setStyle(new StillStyle);
  EXPECT_EQ(WaitsOfWalk(20, HandClock::Refresh), 0);
  QApplication::setStyle(usual);
}
