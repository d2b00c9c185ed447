#pragma once

#include "core/GameWindow.h"
#include "storage/Settings.h"

// What commands ask of the main window beyond what the game does.
class MainWindow : public GameWindow {
 public:
  // Reads every setting afresh and shows what depends on it.
  virtual void LoadGameSetup() = 0;
  // Reads the pictures of the look in the settings and shows them.
  virtual void LoadPictures() = 0;
  // Lays the board out again after a change of the settings.
  virtual void Form_Resize() = 0;
  // While moves are applied a change of size rests; whoever ends that calls this.
  virtual void CatchUpOnResize() = 0;
  virtual bool IsMinimised() const = 0;
  // The bounds of the window in its normal state, and its present state.
  virtual WindowPlacement Placement() const = 0;
  // Closes the window in the normal way, with its question.
  virtual void Exit() = 0;
};
