#pragma once

#include <deque>
#include <functional>
#include <memory>

#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>
#include <QTimer>

#include "app/Globals.h"
#include "tests/storm/Invariants.h"
#include "ui/windows/game/frmGame.h"

// The program in a directory of its own, brought to a moment at which something is then tried. What
// windows open on the way is played from a script; when the script is over, every window that opens
// is written down and closed by its close box, questions are answered with No.
class Stage {
 public:
  using Step = std::function<void(QWidget& window)>;

  explicit Stage(const QString& settings);

  frmGame& Window() { return *window_; }
  const GameState& State() const { return window_->State(); }
  QString Path(const QString& name) const { return directory_.filePath(name); }

  // What is tried when the moment has come.
  void AtTheMoment(std::function<void()> deed) { deed_ = std::move(deed); }
  // Called once, by whoever has brought the program there.
  void Moment();
  bool MomentHasCome() const { return momentHasCome_; }

  // The next dialog or menu that opens, or the one that shows again when one above it has closed.
  void Next(Step step) { script_.push_back(std::move(step)); }
  void Answer(const QString& button);
  // Once the program has been at its own work, without a dialog, for a few turns of its loop.
  void WhenAtWork(std::function<void()> step) { whenAtWork_ = std::move(step); }
  // In the midst of whatever goes on then.
  void After(int milliseconds, std::function<void()> step);
  // No window is looked out for any more, so that the program is alone with its own timers.
  void LookAway() { looking_ = false; }
  // Lets time pass.
  void Settle(int milliseconds);

  void Choose(const char* menuEntry);
  void Click(const char* square);
  // The first moves of the complete tour; the first square is there already.
  void Play(int moves);
  // Opens a game file of these squares, whether or not a knight could have taken them.
  void OpenGame(const std::vector<MoveRow>& squares);
  void Plant(const QString& name, const QByteArray& content) const;
  QByteArray Content(const QString& name) const;
  // From now on questions are answered with Yes.
  void SayYes() { says_ = QMessageBox::Yes; }

  // The titles of the windows that opened since the moment, or showed again.
  const QStringList& Opened() const { return opened_; }
  // The dialog of the moment did not close by itself.
  bool HadToLeave() const { return hadToLeave_; }
  // All that the player can change or see of the main window.
  QString Snapshot() const;
  Inspector& TheInspector() { return inspector_; }

 private:
  void LookOut();
  void Look();
  void LookForWork();
  void Leave(QWidget& window);

  QTemporaryDir directory_;
  Globals globals_;
  std::unique_ptr<frmGame> window_;
  Inspector inspector_;
  std::deque<Step> script_;
  std::function<void()> whenAtWork_;
  std::function<void()> deed_;
  QPointer<QWidget> seen_;
  QPointer<QWidget> here_;  // what had the input at the moment
  QStringList opened_;
  QTimer lookOut_;
  QPointer<QWidget> top_;
  int turnsOnTop_ = 0;
  int turnsAtWork_ = 0;
  bool momentHasCome_ = false;
  bool hadToLeave_ = false;
  bool looking_ = true;
  QMessageBox::StandardButton says_ = QMessageBox::No;
};

// A game file of these squares.
QByteArray GameText(const std::vector<MoveRow>& squares);

// A button of a dialog by its object name.
void Press(QWidget& dialog, const char* button);
