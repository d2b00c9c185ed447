#pragma once

#include "ui/application/Announcer.h"
#include "ui/commands/CommandContext.h"
#include "ui/widgets/SecondaryWindow.h"

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTimer;
class ScrollBar;
class ValueLabel;

// Plays the live game again from its first square, by a timer or step by step. One bar serves two
// uses: the speed of the automatic replay, and the move sought in the manual one; while it seeks,
// the speed is kept as text in the bar's property "tag".
//
// Every step yields, so whatever the player does may arrive in the middle of a long walk. There is
// one stepping loop at a time: a request that comes during it only gives it another goal.
class frmReplay : public SecondaryWindow {
  Q_OBJECT

 public:
  // The context outlives the window.
  frmReplay(const CommandContext& context, QWidget* mainWindow);

  // Total: the number of the game's last move. The game stands on its first square, and all later
  // moves can be redone.
  void StartWith(int Total);

  // Steps forward, or back for a negative Delta.
  void DoUpdateReplay(int Delta);

  void tmrAdvance_Timer();
  void lblMoveValue_Change();
  void hsclSpeedSeekSet_Change();
  void optAdvance_Click();
  void cmdAdvancePause_Click();
  void cmdFinish_Click();
  void cmdRestart_Click();
  void cmdClose_Click();

  // Every way of closing ends here. Asks before the rest of the game is left out, and saves the
  // replay's settings.
  void done(int result) override;
  void SaveSettings();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  enum Advancement { Automatic, Manual };  // the indices of optAdvance
  enum class Walk { Step, Finish, Restart };
  struct Goal {
    int position = 1;
    Walk walk = Walk::Step;  // what a walk there ends with
  };

  QGroupBox* AddKnightFrame();
  QGroupBox* AddAdvanceFrame();
  QGroupBox* AddControlsFrame();

  // The move shown, 1 = the first square: always that of the live game.
  int ReplayPosition() const { return context_.state.MoveCount; }
  bool IsAutomatic() const;
  void StepTo(const Goal& goal);
  void WalkToGoal();
  void StepToGoal();
  // False when the goal is reached.
  bool StepTowardsGoal();
  void ShowPosition();
  // The move and its square, as they are read aloud.
  QString Spoken(int move) const;
  void TellPosition(bool finished);
  void OfferButtons(bool finished);
  QString SpokenBar() const;
  void TellBar();
  void SetBar(int maximum, int value, int largeStep);
  void BeginAutomatic();
  void BeginManual();
  void Advance();
  void Leave();

  const CommandContext& context_;
  QTimer* tmrAdvance_ = nullptr;
  ValueLabel* lblMoveValue_ = nullptr;
  ValueLabel* lblPositionValue_ = nullptr;
  QRadioButton* optAdvance_[2] = {};
  ScrollBar* hsclSpeedSeekSet_ = nullptr;
  QLabel* lblSpeedSeek_ = nullptr;
  ValueLabel* lblSpeedSeekValue_ = nullptr;
  QPushButton* cmdRestart_ = nullptr;
  QPushButton* cmdFinish_ = nullptr;
  QPushButton* cmdAdvancePause_ = nullptr;
  QPushButton* cmdClose_ = nullptr;

  int replayTotal_ = 1;
  Goal goal_;
  bool stepping_ = false;
  bool closing_ = false;
  Announcer announcer_;
};
