#pragma once

#include "app/Globals.h"
#include "core/Game.h"
#include "ui/commands/Dialogs.h"
#include "ui/commands/MainWindow.h"
#include "ui/commands/SecondaryWindows.h"
#include "ui/widgets/PicturePace.h"

// All that a command may use; everything in it outlives the command.
struct CommandContext {
  Game& game;
  GameState& state;
  MainWindow& window;
  Dialogs& dialogs;
  SecondaryWindows& windows;
  Globals& globals;
  PicturePace& pace;
};

// The clock rests for the length of a scope, usually that of a dialog, and then runs again if it
// ran before.
class ClockPause {
 public:
  explicit ClockPause(const CommandContext& context)
      : window_(context.window), wasRunning_(context.game.DoTiming()) {}
  ~ClockPause() { window_.EnableClock(wasRunning_); }
  ClockPause(const ClockPause&) = delete;
  ClockPause& operator=(const ClockPause&) = delete;

 private:
  GameWindow& window_;
  bool wasRunning_;
};
