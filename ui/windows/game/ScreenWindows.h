#pragma once

#include "ui/commands/SecondaryWindows.h"
#include "ui/windows/history/DefaultPrinter.h"

class frmGame;

// The secondary windows on the screen: each is made when it is shown and gone when it is closed.
class ScreenWindows : public SecondaryWindows {
 public:
  explicit ScreenWindows(frmGame& mainWindow);

  void ShowSolve(int startMove) override;
  void ShowReplay(int total) override;
  void ShowMoveHistory() override;
  void ShowCommandHistory() override;
  void ShowWin() override;
  GameOverAnswer ShowGameOver(const GameOverReport& report) override;
  ScoresAnswer ShowScores(ScoreList list, std::optional<FinishedGame> finished) override;
  void ShowPreferences() override;
  void ShowAbout() override;
  void ShowHelp(const QString& topic) override;

 private:
  void ReportPrintingFailure();

  frmGame& mainWindow_;
  DefaultPrinter printer_;  // goes on when the window that it was asked in is closed
};
