#include "ui/windows/frmReplay.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include "storage/NumberParser.h"
#include "ui/application/BarReader.h"
#include "ui/widgets/DialogFitting.h"
#include "ui/widgets/NamedControls.h"
#include "ui/widgets/ScrollBar.h"
#include "ui/widgets/ValueLabel.h"

namespace {

constexpr int SpeedLargeStep = 5;
constexpr int SeekLargeStep = 10;
constexpr int MillisecondsOfTenth = 100;
constexpr int TellingMilliseconds = 1000;
constexpr const char* Tag = "tag";

QString AsSeconds(std::int64_t tenths) {
  return QString::number(static_cast<double>(tenths) / 10) + " sec.";
}

QString SpokenSpeed(int tenths) {
  return QString::number(tenths / 10.0) + (tenths == 10 ? " second" : " seconds");
}

}  // namespace

frmReplay::frmReplay(const CommandContext& context, QWidget* mainWindow)
    : SecondaryWindow(mainWindow, "frmReplay", "Replay"),
      context_(context),
      tmrAdvance_(new QTimer(this)),
      announcer_(TellingMilliseconds) {
  tmrAdvance_->setObjectName("tmrAdvance");
  connect(tmrAdvance_, &QTimer::timeout, this, &frmReplay::tmrAdvance_Timer);
  QVBoxLayout* layout = AddColumn();
  layout->addWidget(AddKnightFrame());
  QGroupBox* controls = AddControlsFrame();
  KeepInSight(*controls);
  layout->addWidget(controls);
  layout->addWidget(AddAdvanceFrame());
  UseNoDefaultButton();
  cmdAdvancePause_->setFocus();
}

// No default button shows where the keyboard is, so the focus is marked from the beginning.
void frmReplay::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  setAttribute(Qt::WA_KeyboardFocusChange);
}

// The labels are made in the order in which they are read aloud: each value after its caption.
QGroupBox* frmReplay::AddKnightFrame() {
  QGroupBox* frame = AddFrame(this, "fraKnight", " Knight:");
  auto* layout = new QGridLayout(frame);
  layout->addWidget(AddLabel(frame, "lblMove", "Move:"), 0, 0);
  lblMoveValue_ = AddValueLabel(context_.pace, frame, "lblMoveValue", "64");
  layout->addWidget(lblMoveValue_, 0, 1, Qt::AlignRight);
  layout->addWidget(AddLabel(frame, "lblPosition", "Position:"), 1, 0);
  lblPositionValue_ = AddValueLabel(context_.pace, frame, "lblPositionValue", "WW");
  layout->addWidget(lblPositionValue_, 1, 1, Qt::AlignRight);
  return frame;
}

QGroupBox* frmReplay::AddControlsFrame() {
  QGroupBox* frame = AddFrame(this, "fraControls", " Controls:");
  cmdRestart_ = AddButton(this, "cmdRestart", "&Restart", &frmReplay::cmdRestart_Click);
  cmdFinish_ = AddButton(this, "cmdFinish", "&Finish", &frmReplay::cmdFinish_Click);
  cmdAdvancePause_ =
      AddButton(this, "cmdAdvancePause", "&Advance", &frmReplay::cmdAdvancePause_Click);
  cmdClose_ = AddButton(this, "cmdClose", "&Close", &frmReplay::cmdClose_Click);
  cmdRestart_->setEnabled(false);
  auto* layout = new QGridLayout(frame);
  layout->addWidget(cmdRestart_, 0, 0);
  layout->addWidget(cmdFinish_, 0, 1);
  layout->addWidget(cmdAdvancePause_, 1, 0);
  layout->addWidget(cmdClose_, 1, 1);
  return frame;
}

QGroupBox* frmReplay::AddAdvanceFrame() {
  QGroupBox* frame = AddFrame(this, "fraAdvance", " Advancement:");
  QVBoxLayout* options = AddOptionColumn(frame);
  optAdvance_[Automatic] = AddOption(options->parentWidget(), "optAdvance(0)", "A&utomatic");
  optAdvance_[Manual] = AddOption(options->parentWidget(), "optAdvance(1)", "&Manual");
  for (QRadioButton* option : optAdvance_) {
    options->addWidget(option);
    connect(option, &QRadioButton::toggled, this, [this](bool checked) {
      if (checked) optAdvance_Click();
    });
  }
  lblSpeedSeek_ = AddLabel(frame, "lblSpeedSeek", "Speed:");
  lblSpeedSeekValue_ = AddValueLabel(context_.pace, frame, "lblSpeedSeekValue", "0.1 sec.");
  hsclSpeedSeekSet_ = new ScrollBar(frame);
  hsclSpeedSeekSet_->setObjectName("hsclSpeedSeekSet");
  hsclSpeedSeekSet_->setRange(1, SquareCount);
  connect(hsclSpeedSeekSet_, &ScrollBar::valueChanged, this, &frmReplay::hsclSpeedSeekSet_Change);
  LeadReadersTo(*hsclSpeedSeekSet_, [this] { return SpokenBar(); });
  auto* layout = new QGridLayout(frame);
  layout->addWidget(options->parentWidget(), 0, 0, 1, 2);
  layout->addWidget(hsclSpeedSeekSet_, 1, 0, 1, 2);
  layout->addWidget(lblSpeedSeek_, 2, 0);
  layout->addWidget(lblSpeedSeekValue_, 2, 1, Qt::AlignRight);
  return frame;
}

void frmReplay::StartWith(int Total) {
  replayTotal_ = std::max(Total, 1);
  lblMoveValue_->ShowValue(1);
  lblMoveValue_Change();
  const Globals& globals = context_.globals;
  const ReplaySettings kept = ReplaySettingsFrom(globals.IniFile.Values());
  hsclSpeedSeekSet_->setProperty(Tag, kept.AdvanceSpeed);
  optAdvance_[kept.manual ? Manual : Automatic]->setChecked(true);
  // The manual mode has just put the bar's value there.
  hsclSpeedSeekSet_->setProperty(Tag, kept.AdvanceSpeed);
}

bool frmReplay::IsAutomatic() const {
  return optAdvance_[Automatic]->isChecked();
}

void frmReplay::DoUpdateReplay(int Delta) {
  StepTo({.position = ReplayPosition() + Delta});
}

void frmReplay::StepTo(const Goal& goal) {
  if (closing_) return;
  goal_ = {std::clamp(goal.position, 1, replayTotal_), goal.walk};
  if (stepping_) return;
  WalkToGoal();
  if (closing_) Leave();
}

// The goal may have become another on the way.
void frmReplay::WalkToGoal() {
  StepToGoal();
  ShowPosition();
  if (!IsAutomatic()) return;
  if (goal_.walk == Walk::Finish) cmdAdvancePause_->setText("P&ause");
  if (goal_.walk == Walk::Restart) Advance();
}

void frmReplay::StepToGoal() {
  const QScopedValueRollback stepping(stepping_, true);
  while (StepTowardsGoal()) context_.window.DoEvents();
  if (goal_.walk == Walk::Restart) context_.game.mnuFileRestart_Click();
}

bool frmReplay::StepTowardsGoal() {
  const int before = ReplayPosition();
  if (before > goal_.position) context_.game.mnuEditUndo_Click();
  if (before < goal_.position) context_.game.mnuEditRedo_Click();
  return ReplayPosition() != before;
}

void frmReplay::ShowPosition() {
  lblMoveValue_->ShowValue(ReplayPosition());
  lblMoveValue_Change();
  // A restarted replay is on offer again, even of one square: its first step ends it.
  const bool finished = ReplayPosition() == replayTotal_ && goal_.walk != Walk::Restart;
  if (finished) tmrAdvance_->stop();
  OfferButtons(finished);
  TellPosition(finished);
  if (IsAutomatic()) return;
  SetBar(replayTotal_, ReplayPosition(), SeekLargeStep);
  lblSpeedSeekValue_->ShowValue(ReplayPosition());
}

QString frmReplay::Spoken(int move) const {
  const MoveRow& square = context_.state.MoveList[static_cast<std::size_t>(move - 1)];
  const QString end = move == replayTotal_ ? ", end of the game" : "";
  return QString::number(move) + ", " + QString::fromStdString(SquareName(square.x, square.y)) +
         end;
}

QString frmReplay::SpokenBar() const {
  const int value = hsclSpeedSeekSet_->value();
  return IsAutomatic() ? SpokenSpeed(value) : Spoken(value);
}

void frmReplay::TellBar() {
  announcer_.Say(SpokenBar());
}

void frmReplay::TellPosition(bool finished) {
  if (finished) {
    announcer_.Say(Spoken(ReplayPosition()));
  } else {
    announcer_.SayProgress(Spoken(ReplayPosition()));
  }
}

void frmReplay::OfferButtons(bool finished) {
  const bool hasBegun = finished || ReplayPosition() > 1;
  if (hasBegun) cmdRestart_->setEnabled(true);
  for (QPushButton* button : {cmdAdvancePause_, cmdFinish_}) {
    if (finished) {
      DisableAndFocus(*button, *cmdRestart_);
    } else {
      button->setEnabled(true);
    }
  }
  if (!hasBegun) DisableAndFocus(*cmdRestart_, *cmdAdvancePause_);
}

void frmReplay::lblMoveValue_Change() {
  const auto move = static_cast<std::size_t>(lblMoveValue_->Value());
  const MoveRow& square = context_.state.MoveList[move - 1];
  lblPositionValue_->ShowValue(SquareIndex(square.x, square.y), AsSquare);
}

// A tick asks for nothing while the knight is walking anyway.
void frmReplay::tmrAdvance_Timer() {
  if (!stepping_) DoUpdateReplay(1);
}

void frmReplay::hsclSpeedSeekSet_Change() {
  const int value = hsclSpeedSeekSet_->value();
  if (IsAutomatic()) {
    lblSpeedSeekValue_->ShowValue(value, AsSeconds);
    if (hsclSpeedSeekSet_->hasFocus()) TellBar();
    tmrAdvance_->setInterval(value * MillisecondsOfTenth);
  } else {
    DoUpdateReplay(value - ReplayPosition());
  }
}

// The bar changes its meaning here, and the caller runs the handler when it is done.
void frmReplay::SetBar(int maximum, int value, int largeStep) {
  const QSignalBlocker silence(hsclSpeedSeekSet_);
  hsclSpeedSeekSet_->setMaximum(maximum);
  hsclSpeedSeekSet_->setPageStep(largeStep);
  hsclSpeedSeekSet_->setValue(value);
}

void frmReplay::optAdvance_Click() {
  if (IsAutomatic()) {
    BeginAutomatic();
  } else {
    BeginManual();
  }
}

void frmReplay::BeginAutomatic() {
  const double speed = LenientNumber(hsclSpeedSeekSet_->property(Tag).toString());
  lblSpeedSeek_->setText("Speed:");
  hsclSpeedSeekSet_->setAccessibleName("Speed");
  SetBar(SlowestAdvance, static_cast<int>(std::lrint(speed)), SpeedLargeStep);
  hsclSpeedSeekSet_Change();
  cmdAdvancePause_->setText("P&ause");
  if (cmdAdvancePause_->isEnabled()) tmrAdvance_->start();
}

void frmReplay::BeginManual() {
  tmrAdvance_->stop();
  hsclSpeedSeekSet_->setProperty(Tag, QString::number(hsclSpeedSeekSet_->value()));
  lblSpeedSeek_->setText("Seek:");
  hsclSpeedSeekSet_->setAccessibleName("Seek");
  SetBar(replayTotal_, ReplayPosition(), SeekLargeStep);
  hsclSpeedSeekSet_Change();
  cmdAdvancePause_->setText("&Advance");
}

void frmReplay::Advance() {
  tmrAdvance_->start();
  cmdAdvancePause_->setText("P&ause");
}

void frmReplay::cmdAdvancePause_Click() {
  if (!IsAutomatic()) {
    DoUpdateReplay(1);
  } else if (tmrAdvance_->isActive()) {
    tmrAdvance_->stop();
    cmdAdvancePause_->setText("St&art");
    announcer_.Say("paused");
  } else {
    Advance();
    announcer_.Say("running");
  }
}

void frmReplay::cmdFinish_Click() {
  tmrAdvance_->stop();
  StepTo({.position = replayTotal_, .walk = Walk::Finish});
}

void frmReplay::cmdRestart_Click() {
  tmrAdvance_->stop();
  StepTo({.position = 1, .walk = Walk::Restart});
}

void frmReplay::cmdClose_Click() {
  close();
}

void frmReplay::done(int) {
  tmrAdvance_->stop();
  announcer_.Forget();
  if (std::exchange(closing_, true)) return;
  goal_ = {.position = ReplayPosition()};
  if (!stepping_) Leave();
}

void frmReplay::Leave() {
  if (cmdFinish_->isEnabled() &&
      context_.window.Ask("End Replay", "Would you like to skip to the end?")) {
    goal_ = {.position = replayTotal_, .walk = Walk::Finish};
    WalkToGoal();
  }
  SaveSettings();
  QDialog::done(Rejected);
}

void frmReplay::SaveSettings() {
  if (IsAutomatic()) {
    hsclSpeedSeekSet_->setProperty(Tag, QString::number(hsclSpeedSeekSet_->value()));
  }
  context_.globals.IniFile.Change(
      ReplayEntries({hsclSpeedSeekSet_->property(Tag).toString(), !IsAutomatic()}));
}
