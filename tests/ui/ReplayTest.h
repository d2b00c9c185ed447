#pragma once

#include <functional>
#include <random>

#include <QAbstractButton>
#include <QScrollBar>
#include <QTimer>

#include "tests/ui/CommandTest.h"
#include "tests/ui/Labels.h"
#include "ui/windows/frmReplay.h"

// The replay window over a live game, with recording windows around it.
class ReplayTest : public CommandTest {
 protected:
  using Watching = std::function<void(frmReplay& replay)>;

  // What the settings file says about the replay.
  void Keep(const QString& advanceSpeed, const QString& advancement);
  QString Kept(const char* key) const;

  // Watches the replay of the game as it stands. A window that is still open then is closed, and
  // the rest of the game is left out.
  void Watch(const Watching& watching);
  // Begins a game of so many moves of the complete tour and watches its replay.
  void Watch(int moves, const Watching& watching);
  // What happens, once, while the knight is walking.
  void WhileWalking(const std::function<void()>& what);

  // True when the window, the game and the list say the same.
  testing::AssertionResult Agrees(frmReplay& replay) const;
};

// What a replay window shows.
class Shown {
 public:
  explicit Shown(frmReplay& replay) : replay_(replay) {}

  QScrollBar& Bar() const { return Find<QScrollBar>("hsclSpeedSeekSet"); }
  QTimer& Timer() const { return Find<QTimer>("tmrAdvance"); }
  QAbstractButton& Button(const char* name) const { return Find<QAbstractButton>(name); }
  QAbstractButton& Automatic() const { return Button("optAdvance(0)"); }
  QAbstractButton& Manual() const { return Button("optAdvance(1)"); }
  QString Text(const char* label) const { return TextOf(replay_, label); }
  QString Tag() const { return Bar().property("tag").toString(); }
  QString Caption() const { return Button("cmdAdvancePause").text(); }
  bool IsOn(const char* button) const { return Button(button).isEnabled(); }

 private:
  template <typename Type>
  Type& Find(const char* name) const {
    return *replay_.findChild<Type*>(name);
  }

  frmReplay& replay_;
};

// What a player who has lost patience does: ticks, drags, presses, changes of mode, and now and
// then a close.
void PressAnything(frmReplay& replay, std::mt19937& random);
