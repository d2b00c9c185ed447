#pragma once

#include <array>

#include <QAction>

#include "core/GameWindow.h"

class frmGame;

// The menu of the main window: built from one table, in which every entry has its name, caption,
// shortcut and command.
class GameMenu {
 public:
  // Fills the window's menu bar. An entry carries its command out only while the player may act.
  explicit GameMenu(frmGame& window);

  QAction& Entry(MenuEntry entry) const { return *entries_[static_cast<std::size_t>(entry)]; }

 private:
  std::array<QAction*, MenuEntryCount> entries_{};
};
