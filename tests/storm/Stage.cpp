#include "tests/storm/Stage.h"

#include <algorithm>
#include <stdexcept>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "tests/storm/VirtualTime.h"
#include "tests/support/Games.h"
#include "ui/board/BoardView.h"

namespace {

// A window that is on top, or work that goes on, for less than this is on its way out.
constexpr int TurnsToStay = 3;
// A search or a walk of the knight ends first.
constexpr int TurnsToEndWork = 100;

QWidget* TopWindow() {
  QWidget* popup = QApplication::activePopupWidget();
  return popup != nullptr ? popup : QApplication::activeModalWidget();
}

bool IsHelpOpen() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* widget) {
    return widget->objectName() == "frmHelp" && widget->isVisible();
  });
}

QString TitleOf(const QWidget& window) {
  return window.windowTitle().isEmpty() ? window.objectName() : window.windowTitle();
}

}  // namespace

Stage::Stage(const QString& settings) {
  globals_.ProgramDirectory = directory_.path() + "/";
  Plant("GallopadeNova.ini", settings.toUtf8());
  window_ = std::make_unique<frmGame>(globals_, VirtualTime::Look);
  window_->Form_Load("");
  LookOut();
  window_->activateWindow();
  Settle(5);
}

void Stage::Moment() {
  if (std::exchange(momentHasCome_, true)) throw std::logic_error("the moment has come twice");
  script_.clear();
  whenAtWork_ = nullptr;
  here_ = TopWindow();
  seen_ = here_;
  QApplication::setActiveWindow(here_ != nullptr ? here_ : window_.get());
  deed_();
  seen_ = nullptr;
}

void Stage::Answer(const QString& button) {
  Next([button](QWidget& window) {
    for (QAbstractButton* each : window.findChildren<QAbstractButton*>()) {
      if (each->text() == button) return each->click();
    }
    throw std::logic_error("no such answer: " + button.toStdString());
  });
}

void Stage::After(int milliseconds, std::function<void()> step) {
  QTimer::singleShot(milliseconds, &lookOut_, std::move(step));
}

void Stage::Settle(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

// Asked for anew before each look, since a step may wait in a window of its own.
void Stage::LookOut() {
  QTimer::singleShot(1, &lookOut_, [this] {
    if (!looking_) return;
    LookOut();
    LookForWork();
    Look();
  });
}

void Stage::LookForWork() {
  const bool working = !window_->PlayerMayAct() && TopWindow() == nullptr;
  turnsAtWork_ = working ? turnsAtWork_ + 1 : 0;
  if (turnsAtWork_ < TurnsToStay || whenAtWork_ == nullptr) return;
  std::exchange(whenAtWork_, nullptr)();
}

void Stage::Look() {
  QWidget* top = TopWindow();
  turnsOnTop_ = top == top_ ? turnsOnTop_ + 1 : 0;
  top_ = top;
  if (top == nullptr || top == seen_) return;
  if (turnsOnTop_ < (top == here_ ? TurnsToEndWork : TurnsToStay)) return;
  seen_ = top;
  if (momentHasCome_) {
    if (top == here_) {
      hadToLeave_ = true;
    } else {
      opened_ += TitleOf(*top);
    }
    Leave(*top);
  } else if (!script_.empty()) {
    const Step step = std::move(script_.front());
    script_.pop_front();
    step(*top);
  }
}

void Stage::Leave(QWidget& window) {
  const auto* box = qobject_cast<QMessageBox*>(&window);
  if (box != nullptr && box->button(says_) != nullptr) {
    box->button(says_)->click();
  } else {
    window.close();
  }
  if (seen_ == &window && !window.isVisible()) seen_ = nullptr;
}

void Stage::Choose(const char* menuEntry) {
  window_->findChild<QAction*>(menuEntry)->trigger();
}

void Stage::Click(const char* square) {
  const QPoint middle = window_->Board().SquareRectangle(IndexOf(square)).center();
  QTest::mouseClick(&window_->Board(), Qt::LeftButton, Qt::NoModifier, middle);
}

void Stage::Play(int moves) {
  const std::vector<MoveRow> squares = SquaresNamed(Games::CompleteTour);
  for (int i = 1; i < moves; ++i) {
    const MoveRow& square = squares[static_cast<std::size_t>(i)];
    Click(SquareName(square.x, square.y).c_str());
  }
}

void Stage::OpenGame(const std::vector<MoveRow>& squares) {
  Plant("game.knight", GameText(squares));
  window_->OpenGameFile(Path("game.knight"));
}

void Stage::Plant(const QString& name, const QByteArray& content) const {
  QFile file(Path(name));
  if (file.open(QIODevice::WriteOnly)) file.write(content);
}

QByteArray Stage::Content(const QString& name) const {
  QFile file(Path(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString Stage::Snapshot() const {
  const GameState& state = window_->State();
  QString text = QString("%1 %2 %3,%4 %5 %6 ")
                     .arg(state.GameSerial)
                     .arg(state.MoveCount)
                     .arg(state.CursorX)
                     .arg(state.CursorY)
                     .arg(state.NoScoreGame)
                     .arg(state.FirstMoveMade);
  for (const MoveRow& row : state.MoveList) text += QString::number(row.x) + QString::number(row.y);
  const Settings& settings = globals_.settings;
  text += QString(" %1 %2 ").arg(settings.ShowScore).arg(settings.ShowTime);
  return text + (IsHelpOpen() ? "help " : "") + (window_->isVisible() ? "open" : "closed");
}

QByteArray GameText(const std::vector<MoveRow>& squares) {
  QByteArray text = "20\r\n";
  for (std::size_t i = 0; i < SquareCount; ++i) {
    const MoveRow move = i < squares.size() ? squares[i] : EmptyMove;
    text += QByteArray::number(move.x) + ' ' + QByteArray::number(move.y) + "\r\n";
  }
  return text;
}

void Press(QWidget& dialog, const char* button) {
  auto* found = dialog.findChild<QAbstractButton*>(button);
  if (found == nullptr) throw std::logic_error(std::string("no button named ") + button);
  found->click();
}
