#include "bench/SolveSession.h"

#include <chrono>
#include <ctime>
#include <thread>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include "ui/board/BoardView.h"
#include "ui/commands/Solve.h"
#include "ui/widgets/ValueLabel.h"

namespace {

using Clock = std::chrono::steady_clock;

// Counts how often one widget is painted.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
  std::int64_t Count() const { return count_; }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }

 private:
  std::int64_t count_ = 0;
};

long ResidentKilobytes() {
  QFile file("/proc/self/statm");
  if (!file.open(QIODevice::ReadOnly)) return 0;
  return file.readAll().split(' ').at(1).toLong() * sysconf(_SC_PAGESIZE) / 1024;
}

QPushButton& StartStop(QWidget& solve) {
  return *solve.findChild<QPushButton*>("cmdStartStop");
}

QEvent* MouseEvent(const QWidget& button, QEvent::Type type) {
  const QPointF middle = button.rect().center();
  const bool pressed = type == QEvent::MouseButtonPress;
  return new QMouseEvent(type, middle, button.mapToGlobal(middle), Qt::LeftButton,
                         pressed ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
}

}  // namespace

double SecondsOnTheClock() {
  return std::chrono::duration<double>(Clock::now().time_since_epoch()).count();
}

double ProcessorSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

bool PaintClock::notify(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::UpdateRequest) return QApplication::notify(receiver, event);
  const double begun = SecondsOnTheClock();
  const bool taken = QApplication::notify(receiver, event);
  seconds_ += SecondsOnTheClock() - begun;
  return taken;
}

SolveSession::SolveSession(const PaintClock& paintClock)
    : paintClock_(paintClock), window_(globals_) {
  globals_.ProgramDirectory = directory_.path() + "/";
  for (const QString& picture : QDir(PICTURES_DIRECTORY).entryList(QDir::Files)) {
    QFile::copy(PICTURES_DIRECTORY + picture, directory_.filePath(picture));
  }
  window_.Form_Load("");
  globals_.settings.ShowSolveWarnings = false;
}

void SolveSession::InSolveWindow(int refreshRate, const std::function<void(QWidget&)>& act) {
  globals_.settings.SolveRefreshRate = static_cast<std::int16_t>(refreshRate);
  QTimer::singleShot(200, &window_, [&] {
    QWidget& solve = *QApplication::activeModalWidget();
    act(solve);
    solve.close();
  });
  mnuFileSolve_Click(window_.Context());
}

SearchReport SolveSession::Search(int refreshRate, int milliseconds) {
  SearchReport report;
  InSolveWindow(refreshRate, [&](QWidget& solve) {
    const auto& tested = *solve.findChild<ValueLabel*>("lblTestedValue");
    const PaintCounter board(window_.Board());
    const double paintingBefore = paintClock_.Seconds();
    const std::uint64_t cellsBefore = window_.Board().PaintedCells();
    const double begun = SecondsOnTheClock();
    const double processorBegun = ProcessorSeconds();
    QTimer::singleShot(milliseconds, &solve, [&] {
      report = {.entries = tested.Value() + 1,
                .seconds = SecondsOnTheClock() - begun,
                .processorSeconds = ProcessorSeconds() - processorBegun,
                .paintingSeconds = paintClock_.Seconds() - paintingBefore,
                .boardPaints = board.Count(),
                .cellsPainted = window_.Board().PaintedCells() - cellsBefore};
      StartStop(solve).click();
    });
    StartStop(solve).click();
  });
  return report;
}

double SolveSession::MillisecondsToStop(int refreshRate) {
  double milliseconds = 0;
  InSolveWindow(refreshRate, [&](QWidget& solve) {
    QPushButton& button = StartStop(solve);
    QEvent* const press = MouseEvent(button, QEvent::MouseButtonPress);
    QEvent* const release = MouseEvent(button, QEvent::MouseButtonRelease);
    Clock::time_point clicked;
    std::thread player([&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      clicked = Clock::now();
      QCoreApplication::postEvent(&button, press);
      QCoreApplication::postEvent(&button, release);
    });
    button.click();
    milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - clicked).count();
    player.join();
  });
  return milliseconds;
}

MemoryReport SolveSession::MemoryOverAMinute(int refreshRate) {
  MemoryReport report;
  InSolveWindow(refreshRate, [&](QWidget& solve) {
    QTimer::singleShot(5'000, &solve, [&] { report.early = ResidentKilobytes(); });
    QTimer::singleShot(60'000, &solve, [&] {
      report.late = ResidentKilobytes();
      StartStop(solve).click();
    });
    StartStop(solve).click();
  });
  return report;
}
