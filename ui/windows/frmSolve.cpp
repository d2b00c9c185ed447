#include "ui/windows/frmSolve.h"

#include <utility>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "core/NumberText.h"
#include "ui/application/BarReader.h"
#include "ui/widgets/NamedControls.h"
#include "ui/widgets/ScrollBar.h"
#include "ui/widgets/ValueLabel.h"

namespace {

constexpr int RefreshSmallStep = 100;
constexpr int RefreshLargeStep = 1000;
constexpr int TellingMilliseconds = 10000;

QString AsRefresh(std::int64_t rate) {
  return rate < 2 ? "On Every Move" : "Every" + QString::fromStdString(NumberText(rate)) + " Moves";
}

}  // namespace

frmSolve::frmSolve(const CommandContext& context, QWidget* mainWindow)
    : SecondaryWindow(mainWindow, "frmSolve", "Solve"),
      context_(context),
      announcer_(TellingMilliseconds) {
  QVBoxLayout* layout = AddColumn();
  layout->addWidget(AddKnightFrame());
  layout->addWidget(AddRefreshFrame());
  layout->addWidget(AddControlsFrame());
  cmdStartStop_->setFocus();
  ShowValues(0);
}

// The labels are made in the order in which they are read aloud: each value after its caption.
QGroupBox* frmSolve::AddKnightFrame() {
  QGroupBox* frame = AddFrame(this, "fraKnight", " Knight:");
  auto* layout = new QGridLayout(frame);
  layout->setColumnStretch(1, 1);
  layout->addWidget(AddLabel(frame, "lblTested", "Tested:"), 0, 0);
  lblTestedValue_ = AddValueLabel(context_.pace, frame, "lblTestedValue", "888888888888888");
  layout->addWidget(lblTestedValue_, 0, 1, Qt::AlignRight);
  layout->addWidget(AddLabel(frame, "lblMove", "Move:"), 1, 0);
  lblMoveValue_ = AddValueLabel(context_.pace, frame, "lblMoveValue", "88");
  layout->addWidget(lblMoveValue_, 1, 1, Qt::AlignRight);
  layout->addWidget(AddLabel(frame, "lblPosition", "Position:"), 2, 0);
  lblPositionValue_ = AddValueLabel(context_.pace, frame, "lblPositionValue", "W8");
  layout->addWidget(lblPositionValue_, 2, 1, Qt::AlignRight);
  return frame;
}

QGroupBox* frmSolve::AddRefreshFrame() {
  QGroupBox* frame = AddFrame(this, "fraRefresh", " Refresh:");
  hsclRefreshRateValue_ = new ScrollBar(frame);
  hsclRefreshRateValue_->setObjectName("hsclRefreshRateValue");
  hsclRefreshRateValue_->setAccessibleName("Refresh");
  hsclRefreshRateValue_->setRange(1, MaximumSolveRefresh);
  hsclRefreshRateValue_->setSingleStep(RefreshSmallStep);
  hsclRefreshRateValue_->setPageStep(RefreshLargeStep);
  hsclRefreshRateValue_->setValue(context_.globals.settings.SolveRefreshRate);
  lblRefreshRate_ =
      AddValueLabel(context_.pace, frame, "lblRefreshRate", AsRefresh(MaximumSolveRefresh));
  connect(hsclRefreshRateValue_, &ScrollBar::valueChanged, this,
          &frmSolve::hsclRefreshRateValue_Change);
  LeadReadersTo(*hsclRefreshRateValue_, [this] { return SpokenBar(); });
  hsclRefreshRateValue_Change();
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(hsclRefreshRateValue_);
  layout->addWidget(lblRefreshRate_, 0, Qt::AlignRight);
  return frame;
}

QGroupBox* frmSolve::AddControlsFrame() {
  QGroupBox* frame = AddFrame(this, "fraControls", " Controls:");
  cmdStartStop_ = AddButton(this, "cmdStartStop", "&Start", &frmSolve::cmdStartStop_Click);
  cmdBacktrack_ = AddButton(this, "cmdBacktrack", "&Backtrack", &frmSolve::cmdBacktrack_Click);
  cmdBacktrack_->setEnabled(false);
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(cmdStartStop_);
  layout->addWidget(cmdBacktrack_);
  layout->addWidget(AddButton(this, "cmdClose", "&Close", &frmSolve::cmdClose_Click));
  return frame;
}

void frmSolve::hsclRefreshRateValue_Change() {
  const int rate = hsclRefreshRateValue_->value();
  context_.globals.settings.SolveRefreshRate = static_cast<std::int16_t>(rate);
  lblRefreshRate_->ShowValue(rate, AsRefresh);
  if (hsclRefreshRateValue_->hasFocus()) TellBar();
}

QString frmSolve::SpokenBar() const {
  return lblRefreshRate_->Text().toLower();
}

void frmSolve::TellBar() {
  announcer_.Say(SpokenBar());
}

void frmSolve::ShowProgress() {
  ShowValues(solver_.PositionsTested - 1);
  if (announcer_.AwaitsProgress()) {
    announcer_.SayProgress(QString::number(solver_.PositionsTested - 1) + " tested");
  }
}

void frmSolve::ShowValues(std::int64_t tested) {
  const GameState& state = context_.state;
  lblTestedValue_->ShowValue(tested);
  lblMoveValue_->ShowValue(state.MoveCount);
  lblPositionValue_->ShowValue(SquareIndex(state.KnightX, state.KnightY), AsSquare);
}

void frmSolve::OfferStop(bool stop) {
  stopOffered_ = stop;
  cmdStartStop_->setText(stop ? "&Stop" : "&Start");
}

// A stopped search is still on the stack until its yield is over: no other can start before.
void frmSolve::cmdStartStop_Click() {
  if (stopOffered_) {
    solver_.StopSolving = true;
    OfferStop(false);
  } else if (!working_ && !closing_) {
    Search();
  }
}

void frmSolve::Search() {
  {
    const QScopedValueRollback working(working_, true);
    context_.game.ExcludeFromScores();
    OfferStop(true);
    announcer_.Say("search started");
    announcer_.Rest();
    DisableAndFocus(*cmdBacktrack_, *cmdStartStop_);
    EndSearch(FindTour());
    OfferStop(false);
  }
  if (closing_) Leave();
}

bool frmSolve::FindTour() {
  const WatchedWork search(context_.pace);
  solver_ = SolverState();
  context_.state.SolverRunning = true;
  const bool solved =
      SolveTheGameNoRefresh({context_.game, context_.state, context_.window, solver_,
                             context_.globals.settings.SolveRefreshRate, *this});
  context_.state.SolverRunning = false;
  return solved;
}

void frmSolve::EndSearch(bool solved) {
  // Asked before the events run: a Stop in these comes too late, the search has given its answer.
  const bool stopped = solver_.StopSolving;
  context_.window.RestoreColors();
  context_.game.DoCaption();
  context_.window.DoEvents();
  ShowProgress();
  context_.pace.Complete();
  if (stopped) {
    announcer_.Say("search stopped");
    cmdBacktrack_->setEnabled(solveStartMove_ < context_.state.MoveCount);
  } else if (solved) {
    context_.window.EnableClock(false);
    context_.window.Tell("Solved Successfully", "The game has been solved!",
                         MessageIcon::Information);
    cmdBacktrack_->setEnabled(true);
    DisableAndFocus(*cmdStartStop_, *cmdBacktrack_);
  } else {
    context_.window.Tell("No Solution",
                         "At the current position, there is no solution to this game.\n"
                         "Undo a few moves and try solving again.",
                         MessageIcon::Information);
  }
}

void frmSolve::cmdBacktrack_Click() {
  if (working_ || closing_) return;
  Backtrack();
  if (closing_) Leave();
}

void frmSolve::Backtrack() {
  const QScopedValueRollback working(working_, true);
  int undos = context_.state.MoveCount - solveStartMove_;
  const WatchedWork walk(context_.pace, undos);
  for (; undos > 0; --undos) {
    context_.game.mnuEditUndo_Click();
    context_.window.DoEvents();
  }
  ShowValues(0);
  context_.game.DoCaption();
  announcer_.Say("back at move " + QString::number(context_.state.MoveCount));
  cmdStartStop_->setEnabled(true);
  DisableAndFocus(*cmdBacktrack_, *cmdStartStop_);
}

void frmSolve::cmdClose_Click() {
  close();
}

void frmSolve::done(int) {
  context_.pace.Hurry();
  if (std::exchange(closing_, true)) return;
  if (stopOffered_) cmdStartStop_Click();
  if (!working_) Leave();
}

void frmSolve::Leave() {
  context_.window.DoEvents();
  if (cmdBacktrack_->isEnabled() &&
      context_.window.Ask("Backtrack?", "Do you want to backtrack before closing?")) {
    Backtrack();
  }
  QDialog::done(Rejected);
}
