// Hours of play in one go. Afterwards the program needs no more memory and no more files than after
// its first minutes, and rests when nothing happens.

#include <malloc.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QThreadPool>
#include <QTimer>
#include <gtest/gtest.h>

#include "tests/storm/Stage.h"
#include "tests/storm/VirtualTime.h"
#include "tests/support/Games.h"

namespace {

constexpr std::int64_t Minute = 60'000;
constexpr std::int64_t Hour = 60 * Minute;
constexpr std::int64_t WarmUp = 10 * Minute;
constexpr long MostGrowthInKilobytes = 2048;

struct Health {
  long kilobytes = 0;
  unsigned openFiles = 0;
};

Health Measure(Stage& stage) {
  stage.Settle(1000);
  QThreadPool::globalInstance()->waitForDone();
  malloc_trim(0);
  QFile file("/proc/self/statm");
  if (!file.open(QIODevice::ReadOnly)) return {};
  const long pages = file.readAll().split(' ').value(1).toLong();
  file.close();
  return {pages * (sysconf(_SC_PAGESIZE) / 1024), QDir("/proc/self/fd").count()};
}

int HoursToPlay() {
  const int hours = qEnvironmentVariableIntValue("GALLOPADE_HOURS");
  return hours > 0 ? hours : 2;
}

std::vector<MoveRow> FortyMoves() {
  std::vector<MoveRow> rows = SquaresNamed(Games::CompleteTour);
  rows.resize(40);
  return rows;
}

// A player who does the same things in every round, and takes his time.
class Round {
 public:
  explicit Round(Stage& stage) : stage_(stage) {}

  void Play() {
    Autoplay();
    Replay();
    Solve();
    StepBack();
    Save();
    for (const char* entry : {"mnuHelpAbout", "mnuPrefs", "mnuViewHistory", "mnuViewHighScores",
                              "mnuViewLowScores", "mnuFileOpen", "mnuEditChessboardOpen"}) {
      Look(entry);
    }
    ReadHelp();
    FinishAndEnterName();
  }

 private:
  void Autoplay() {
    if (stage_.Window().Context().game.GameInProgress()) stage_.Answer("&Yes");
    stage_.Choose("mnuFileNew");
    stage_.Play(5);
    stage_.Settle(5000);
    stage_.Choose("mnuFileAutoplay");
    stage_.Settle(2000);
  }

  void Replay() {
    // Nothing comes of it when the replay has been closed by then.
    stage_.Next([](QWidget& replay) { QTimer::singleShot(40'000, &replay, &QWidget::close); });
    stage_.Choose("mnuViewReplay");
  }

  void Solve() {
    stage_.OpenGame(FortyMoves());
    stage_.Next([](QWidget& solve) { Press(solve, "cmdStartStop"); });
    stage_.Answer("OK");
    stage_.Next([](QWidget& solve) { Press(solve, "cmdClose"); });
    stage_.Answer("&Yes");
    stage_.Choose("mnuFileSolve");
  }

  void StepBack() {
    stage_.Next([](QWidget& history) {
      history.findChild<QListWidget*>("lstMoves")->setCurrentRow(0);
      Press(history, "cmdOptionsOrUndo");
    });
    stage_.Choose("mnuEditHistory");
  }

  void Save() {
    stage_.Next([this](QWidget& dialog) {
      auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
      name->setText(stage_.Path(QString("game %1.knight").arg(++saved_ % 2)));
      QTest::keyClick(name, Qt::Key_Return);
    });
    if (saved_ > 1) stage_.Answer("&Yes");  // replace it
    stage_.Click("C7");
    stage_.Choose("mnuFileSave");
  }

  void Look(const char* entry) {
    if (QByteArray(entry) == "mnuFileOpen") stage_.Answer("&Yes");  // leave the game
    stage_.Next([this](QWidget& dialog) {
      if (auto* picture = dialog.findChild<QWidget*>("picAboutImage")) {
        QTest::mouseDClick(picture, Qt::LeftButton);
      }
      stage_.After(3000, [&dialog] { dialog.close(); });
    });
    stage_.Choose(entry);
  }

  void ReadHelp() {
    stage_.Choose("mnuHelpContents");
    stage_.Settle(3000);
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == "frmHelp") window->close();
    }
  }

  void FinishAndEnterName() {
    std::vector<MoveRow> moves = SquaresNamed(Games::DeadEndAfter20);
    moves.pop_back();
    stage_.Answer("&Yes");
    stage_.OpenGame(moves);
    stage_.Next([](QWidget& gameOver) { Press(gameOver, "cmdScoresReplay"); });
    stage_.Next([](QWidget& scores) { scores.close(); });
    stage_.Click("A1");
  }

  Stage& stage_;
  int saved_ = 0;
};

class LongRun : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    stage_ = new Stage("[Settings]\nShow Solve Warnings=0\n[Replay]\nAdvance Speed=5\n");
    const std::int64_t begin = VirtualTime::Milliseconds();
    auto playUntil = [begin, round = Round(*stage_)](std::int64_t end) mutable {
      while (VirtualTime::Milliseconds() - begin < end) round.Play();
    };
    playUntil(WarmUp);
    early_ = Measure(*stage_);
    playUntil(HoursToPlay() * Hour);
    late_ = Measure(*stage_);
    stage_->LookAway();
    stage_->Settle(1000);
  }

  static void TearDownTestSuite() { delete stage_; }

  static std::int64_t WaitsInAMinute() {
    const std::int64_t before = VirtualTime::Waits();
    stage_->Settle(Minute);
    return VirtualTime::Waits() - before;
  }

  static inline Stage* stage_ = nullptr;
  static inline Health early_;
  static inline Health late_;
};

}  // namespace

TEST_F(LongRun, NeedsNoMoreMemoryThanAfterItsFirstMinutes) {
  RecordProperty("kilobytes_early", static_cast<int>(early_.kilobytes));
  RecordProperty("kilobytes_late", static_cast<int>(late_.kilobytes));
  EXPECT_LT(late_.kilobytes - early_.kilobytes, MostGrowthInKilobytes)
      << early_.kilobytes << " kB after ten minutes, " << late_.kilobytes << " kB at the end";
}

TEST_F(LongRun, KeepsNoFileOpen) {
  EXPECT_EQ(late_.openFiles, early_.openFiles);
}

TEST_F(LongRun, WakesUpForTheClockAlone) {
  stage_->Choose("mnuFileNew");
  stage_->Click("C7");
  ASSERT_TRUE(stage_->Window().IsClockEnabled());
  EXPECT_NEAR(static_cast<double>(WaitsInAMinute()), 120, 2);
}

TEST_F(LongRun, SleepsWhenTheClockRests) {
  if (stage_->Window().Context().game.GameInProgress()) stage_->Choose("mnuFileAutoplay");
  ASSERT_FALSE(stage_->Window().IsClockEnabled());
  EXPECT_LE(WaitsInAMinute(), 1);
}
