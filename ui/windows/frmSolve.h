#pragma once

#include <cstdint>

#include "solver/TourSolver.h"
#include "ui/application/Announcer.h"
#include "ui/commands/CommandContext.h"
#include "ui/widgets/SecondaryWindow.h"

class QGridLayout;
class QGroupBox;
class QPushButton;
class ScrollBar;
class ValueLabel;

// Starts and stops the search for a tour on the live game, shows how it goes, and takes back the
// moves that it added.
//
// The search runs inside the click that starts it. Whatever the player does meanwhile arrives in
// the middle of it, when it yields: closing then waits for the search to unwind.
class frmSolve : public SecondaryWindow, public SolveProgress {
  Q_OBJECT

 public:
  // The context outlives the window. The game has its first square.
  frmSolve(const CommandContext& context, QWidget* mainWindow);

  // Move: the number of moves that Backtrack goes back to.
  void StartAt(int Move) { solveStartMove_ = Move; }

  void hsclRefreshRateValue_Change();
  void cmdStartStop_Click();
  void cmdBacktrack_Click();
  void cmdClose_Click();

  void ShowProgress() override;

  // Every way of closing ends here. It cannot be cancelled, but it may have to wait.
  void done(int result) override;

 private:
  QGroupBox* AddKnightFrame();
  QGroupBox* AddRefreshFrame();
  QGroupBox* AddControlsFrame();

  void ShowValues(std::int64_t tested);
  void OfferStop(bool stop);
  QString SpokenBar() const;
  void TellBar();
  void Search();
  bool FindTour();
  void EndSearch(bool solved);
  void Backtrack();
  void Leave();

  const CommandContext& context_;
  ValueLabel* lblTestedValue_ = nullptr;
  ValueLabel* lblMoveValue_ = nullptr;
  ValueLabel* lblPositionValue_ = nullptr;
  ScrollBar* hsclRefreshRateValue_ = nullptr;
  ValueLabel* lblRefreshRate_ = nullptr;
  QPushButton* cmdStartStop_ = nullptr;
  QPushButton* cmdBacktrack_ = nullptr;

  SolverState solver_;
  int solveStartMove_ = 1;
  bool stopOffered_ = false;  // cmdStartStop reads "Stop"
  bool working_ = false;      // a search or a backtrack is on the stack
  bool closing_ = false;
  Announcer announcer_;
};
