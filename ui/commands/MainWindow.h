#pragma once

#include "core/GameWindow.h"
#include "storage/Settings.h"

// What commands ask of the main window beyond what the game does.
class MainWindow : public GameWindow {
 public:
  // Lays the board out again after a change of the settings.
  virtual void Form_Resize() = 0;
  // While moves are applied a change of size rests; whoever ends that calls this.
  virtual void CatchUpOnResize() = 0;
  // Gives every square the highlight once and then its own look, so that each colour and picture is
  // assigned afresh. The cursor stays where it is.
  virtual void RepaintWholeBoard() = 0;
  // Refreshes the highlight under the cursor.
  virtual void RefreshHighlight() = 0;
  virtual bool IsMinimised() const = 0;
  // The bounds of the window in its normal state, and its present state.
  virtual WindowPlacement Placement() const = 0;
};
