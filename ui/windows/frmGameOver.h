#pragma once

#include "core/GameWindow.h"
#include "ui/commands/SecondaryWindows.h"
#include "ui/widgets/SecondaryWindow.h"

// Tells how the game ended. Whatever closes it stands for its main button; only the other button,
// which takes the last move back, does not.
class frmGameOver : public SecondaryWindow {
  Q_OBJECT

 public:
  frmGameOver(const GameOverReport& report, QWidget* mainWindow);

  void cmdScoresReplay_Click();
  void cmdUndo_Click();

  GameOverAnswer Answer() const { return answer_; }

 private:
  GameOverAnswer answer_ = GameOverAnswer::MainButton;
};
