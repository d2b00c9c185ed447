#include "ui/windows/game/ScreenWindows.h"

#include <memory>

#include <QApplication>
#include <QTimer>

#include "ui/board/BoardView.h"
#include "ui/commands/MoveHistory.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/windows/animations/Canvas.h"
#include "ui/windows/animations/frmAbout.h"
#include "ui/windows/animations/frmWin.h"
#include "ui/windows/frmGameOver.h"
#include "ui/windows/frmReplay.h"
#include "ui/windows/frmSolve.h"
#include "ui/windows/game/SidePanel.h"
#include "ui/windows/game/frmGame.h"
#include "ui/windows/history/frmHistory.h"
#include "ui/windows/preferences/frmPreferences.h"
#include "ui/windows/scores/frmScores.h"

namespace {

constexpr int RetryMilliseconds = 100;

// For as long as it exists, a dialog has its place beside the board, which it shall not hide. Where
// windows may choose their places, the dialog stands beside the main window, which moves aside for
// want of room; elsewhere it is shown inside of it. The dialog and the window outlive it.
class BesideTheBoard {
 public:
  BesideTheBoard(QDialog& dialog, frmGame& window) : window_(window) {
    if (WindowsHavePlaces()) {
      window.StandAsideFrom(PlaceBeside(dialog, window, window.Board()));
    } else {
      panel_ = std::make_unique<SidePanel>(dialog, window);
    }
  }
  ~BesideTheBoard() {
    window_.ComeBack();
    if (panel_ == nullptr) return;
    panel_.reset();
    window_.Form_Resize();
  }
  BesideTheBoard(const BesideTheBoard&) = delete;
  BesideTheBoard& operator=(const BesideTheBoard&) = delete;

 private:
  frmGame& window_;
  std::unique_ptr<SidePanel> panel_;
};

}  // namespace

ScreenWindows::ScreenWindows(frmGame& mainWindow) : mainWindow_(mainWindow), printer_({}) {
  QObject::connect(&printer_, &DefaultPrinter::Failed, &printer_,
                   [this] { ReportPrintingFailure(); });
}

// The window that asked for the printing tells it at once; when that is closed, the main window
// does as soon as nothing else is going on.
void ScreenWindows::ReportPrintingFailure() {
  const CommandContext& context = mainWindow_.Context();
  const auto report = [&context] {
    const ClockPause pause(context);
    ::ReportPrintingFailure(context);
  };
  const QWidget* dialog = QApplication::activeModalWidget();
  if (dialog != nullptr && dialog->objectName() == "frmHistory") {
    report();
  } else if (dialog != nullptr || !mainWindow_.Perform(report)) {
    QTimer::singleShot(RetryMilliseconds, &printer_, [this] { ReportPrintingFailure(); });
  }
}

void ScreenWindows::ShowSolve(int startMove) {
  frmSolve window(mainWindow_.Context(), &mainWindow_);
  const BesideTheBoard place(window, mainWindow_);
  window.StartAt(startMove);
  window.exec();
}

void ScreenWindows::ShowReplay(int total) {
  frmReplay window(mainWindow_.Context(), &mainWindow_);
  const BesideTheBoard place(window, mainWindow_);
  window.StartWith(total);
  window.exec();
}

void ScreenWindows::ShowMoveHistory() {
  frmHistory window(mainWindow_.Context(), printer_, &mainWindow_);
  window.ListMoves();
  window.exec();
}

void ScreenWindows::ShowCommandHistory() {
  frmHistory window(mainWindow_.Context(), printer_, &mainWindow_);
  window.ListCommands();
  window.exec();
}

void ScreenWindows::ShowWin() {
  frmWin window(HasManyColors(*mainWindow_.screen()), &mainWindow_);
  window.exec();
}

GameOverAnswer ScreenWindows::ShowGameOver(const GameOverReport& report) {
  frmGameOver window(report, &mainWindow_);
  window.exec();
  return window.Answer();
}

ScoresAnswer ScreenWindows::ShowScores(ScoreList list, std::optional<FinishedGame> finished) {
  frmScores window(mainWindow_.Context(), &mainWindow_);
  const bool isHigh = list == ScoreList::High;
  if (isHigh) {
    window.LoadHigh();
  } else {
    window.LoadLow();
  }
  if (finished) window.SendScore(finished->totalMoves, finished->totalTime, isHigh);
  window.exec();
  return window.Answer();
}

void ScreenWindows::ShowPreferences() {
  frmPreferences window(mainWindow_.Context(), mainWindow_.Pictures(), &mainWindow_);
  window.exec();
}

void ScreenWindows::ShowAbout() {
  frmAbout window(mainWindow_.Context().globals, HasManyColors(*mainWindow_.screen()),
                  &mainWindow_);
  window.exec();
}

void ScreenWindows::ShowHelp(const QString& topic) {
  mainWindow_.GetHelp(topic);
}
