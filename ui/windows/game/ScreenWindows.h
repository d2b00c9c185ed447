#pragma once

#include "ui/commands/SecondaryWindows.h"

class frmGame;

// The secondary windows on the screen: each is made when it is shown and gone when it is closed.
class ScreenWindows : public SecondaryWindows {
 public:
  explicit ScreenWindows(frmGame& mainWindow) : mainWindow_(mainWindow) {}

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
  frmGame& mainWindow_;
};
