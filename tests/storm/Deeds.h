#pragma once

#include <array>
#include <vector>

#include "tests/storm/Stage.h"

// How far a deed reaches when the main window does not have the input.
enum class Reach {
  Blocked,   // a dialog keeps it away, and work in progress ignores it
  Closing,   // a dialog keeps it away, work remembers it
  Help,      // a dialog lets it through, work ignores it
  CloseBox,  // closes the dialog that has the input
  Quit,      // closes every dialog and then the main window
};

// The four moments at which nothing is open, in the order of their rows.
inline constexpr std::size_t IdleMoments = 4;

// Something that the player, the window manager or a screen reader does.
struct DeedRow {
  const char* name;
  Reach reach;
  void (*act)(Stage& stage, const char* name);
  // What comes of it at the idle moments: the windows that open, "done" when only the game, the
  // options or the help have changed, "closed" for the main window, "" for nothing.
  std::array<const char*, IdleMoments> idle;
};

const std::vector<DeedRow>& Deeds();
