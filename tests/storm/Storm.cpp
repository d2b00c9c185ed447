#include "tests/storm/Storm.h"

#include <QApplication>
#include <QPalette>
#include <QPointer>
#include <QStyle>
#include <QThread>
#include <QTimer>

#include "tests/storm/Hand.h"
#include "tests/storm/VirtualTime.h"
#include "ui/help/frmHelp.h"

namespace {

constexpr int MostActionsToLeave = 500;
constexpr int MostNestedActions = 30;
constexpr int LongestSession = 3000;
constexpr int ActionsPerChangeOfDesktop = 100;

QWidget* OpenHelp() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == "frmHelp" && widget->isVisible()) return widget;
  }
  return nullptr;
}

bool IsSolving() {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal->objectName() == "frmSolve";
}

// All that a player's deeds could change.
bool AreAlike(const GameState& one, const GameState& other) {
  return one.Board == other.Board && one.MoveList == other.MoveList &&
         one.MoveCount == other.MoveCount && one.CursorX == other.CursorX &&
         one.CursorY == other.CursorY && one.GameSerial == other.GameSerial &&
         one.NoScoreGame == other.NoScoreGame && one.FirstMoveMade == other.FirstMoveMade;
}

}  // namespace

Storm::Storm(std::uint64_t seed, int actions, Journal& journal)
    : chance_(seed), actions_(actions), journal_(journal), folder_(chance_) {
  journal_.BeginSeed(seed);
}

void Storm::Run() {
  const QString style = QApplication::style()->name();
  const QFont font = QApplication::font();
  while (journal_.ActionsOfSeed() < actions_) RunProgram();
  QApplication::setStyle(style);
  QApplication::setFont(font);
  QApplication::setPalette(QPalette());
}

QString Storm::CommandLine() {
  if (!chance_.OneIn(3)) return {};
  const QStringList names = ProgramFolder::NamesToOpen(FileKind::Game);
  return folder_.Path(chance_.Pick(names));
}

void Storm::RunProgram() {
  started_ = false;
  actionsOfProgram_ = 0;
  patience_ = 1 + chance_.Below(LongestSession);
  Globals globals;
  globals.ProgramDirectory = folder_.Name();
  frmGame window(globals, VirtualTime::Look);
  journal_.Note("start the program");
  ActLater(window);
  window.Form_Load(CommandLine().toStdString());
  started_ = true;
  if (window.isVisible()) QApplication::exec();
  FailOn(folder_.Complaint());
}

// Sometimes at once, so that it hits the program at work; sometimes after a while, so that timers
// tick. A search would fill a while with billions of tries.
int Storm::Pause() {
  if (IsSolving() || !chance_.OneIn(12)) return chance_.Below(30);
  return chance_.Below(chance_.OneIn(4) ? 3000 : 400);
}

void Storm::ActLater(frmGame& window) {
  QTimer::singleShot(Pause(), &clockOfPlayer_, [this, &window = window, alive = QPointer(&window)] {
    if (alive.isNull()) return;
    if (!window.isVisible()) return InspectEnd();
    ActLater(window);
    Act(window);
  });
}

// Nobody would find a dialog that has lost its main window.
void Storm::InspectEnd() {
  if (QApplication::activeModalWidget() != nullptr) journal_.Fail("a dialog has been left alone");
}

void Storm::Act(frmGame& window) {
  ++depth_;
  journal_.BeginAction();
  Inspect(window);
  ++actionsOfProgram_;
  if (depth_ > MostNestedActions) journal_.Fail("actions are nested too deeply");
  if (actionsOfProgram_ > patience_ + MostActionsToLeave) journal_.Fail("the program stays open");
  if (window.PlayerMayAct() || QApplication::activeModalWidget() != nullptr) {
    ActOn(window);
  } else {
    ActWhileBusy(window);
  }
  Inspect(window);
  --depth_;
}

void Storm::ActOn(frmGame& window) {
  const Hand hand{chance_, journal_, folder_, window};
  const bool leaving = actionsOfProgram_ > patience_ || journal_.ActionsOfSeed() > actions_;
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* help = OpenHelp();
  if (QWidget* popup = QApplication::activePopupWidget()) {
    CountAt(*popup);
    ActOnPopup(hand, *popup);
  } else if (!leaving && chance_.OneIn(ActionsPerChangeOfDesktop)) {
    ActOnDesktop(hand, modal != nullptr ? *modal : window);
  } else if (modal != nullptr) {
    Activate(*modal);
    leaving ? LeaveDialog(hand, *modal) : ActOnDialog(hand, *modal);
  } else if (leaving) {
    journal_.Note("leave the program");
    window.close();
  } else if (help != nullptr && chance_.OneIn(3)) {
    Activate(*help);
    ActOnHelp(hand, *help);
  } else {
    Activate(window);
    ActOnMainWindow(hand);
  }
}

// A player clicks on a window before he types into it.
void Storm::Activate(QWidget& window) {
  CountAt(window);
  QApplication::setActiveWindow(&window);
}

void Storm::CountAt(const QWidget& window) {
  const QString name = window.objectName();
  journal_.CountAt(name.isEmpty() ? window.metaObject()->className() : name.toStdString());
}

void Storm::ActWhileBusy(frmGame& window) {
  journal_.CountAt("while the program is at work");
  const GameState before = window.State();
  ActOn(window);
  if (!AreAlike(before, window.State())) journal_.Fail("the program was disturbed at its work");
}

void Storm::Inspect(frmGame& window) {
  // A dialog that has just been closed has not been acted on before its own loop is left.
  const bool idle = started_ && depth_ == 1 && QThread::currentThread()->loopLevel() == 1 &&
                    window.PlayerMayAct() && window.isVisible();
  FailOn(inspector_.ComplaintAbout(window, idle));
  FailOn(folder_.Complaint());
}

void Storm::FailOn(const std::string& complaint) {
  if (!complaint.empty()) journal_.Fail(complaint);
}
