#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>

#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "app/Globals.h"
#include "tests/ui/Displays.h"
#include "ui/windows/game/frmGame.h"

// A desk with the program on it: the real main window, offscreen, in a program directory of its
// own, and a visitor who deals with the modal windows that open, one after the other.
class Desk : public testing::Test {
 protected:
  using Visit = std::function<void(QWidget& modal)>;

  Desk();
  ~Desk() override;

  // Opens the main window; settings are what the settings file shall hold before.
  void Open(const QString& settings = QString(), const QString& commandLine = QString());
  // Closes the main window as the window manager does; true when it closed.
  bool Close();

  // The next modal windows are dealt with in this order; each visit must end with its window closed
  // (or about to close). A modal window that nobody expects fails the test and is rejected.
  void WhenNextModalOpens(Visit visit) { visits_.push_back(std::move(visit)); }
  // The next modal window is a message box with this title and text; the button is pressed.
  void Answer(const QString& title, const QString& text, QMessageBox::StandardButton button);
  bool AllVisitsMade() const { return visits_.empty(); }

  void ClickSquare(int x, int y);
  void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  QAction& MenuItem(const char* name) const;
  // Chooses a menu entry as a player does: nothing happens when it is disabled.
  void Choose(const char* name);

  QString ProgramFile(const QString& name) const { return directory_.filePath(name); }
  QByteArray Contents(const QString& name) const;
  frmGame& Window() { return *window_; }
  const GameState& State() { return window_->State(); }
  Globals globals;
  // What the main window keeps time by, from when it opens.
  PicturePace::Clock clock = AlwaysReady();

 private:
  void LookOut();
  void LookForModal();

  QTemporaryDir directory_;
  std::unique_ptr<frmGame> window_;
  std::deque<Visit> visits_;
  QList<QPointer<QWidget>> visited_;
  QObject lookOut_;
};

// A child by its object name; fails the test when there is none.
template <typename Widget>
Widget& Child(QWidget& window, const char* name) {
  auto* child = window.findChild<Widget*>(name);
  if (child == nullptr) throw std::runtime_error(std::string("no child named ") + name);
  return *child;
}
