#pragma once

#include <array>

#include <QAction>

#include "core/GameWindow.h"
#include "ui/application/Announcer.h"

class frmGame;

// The menu of the main window: built from one table, in which every entry has its name, caption,
// shortcut and command.
class GameMenu {
 public:
  // Fills the window's menu bar. An entry carries its command out only while the player may act.
  explicit GameMenu(frmGame& window);

  QAction& Entry(MenuEntry entry) const { return *entries_[static_cast<std::size_t>(entry)]; }
  // The disabled entry of that shortcut; null when there is none.
  const QAction* DisabledEntryOf(const QKeySequence& keys) const;

 private:
  Announcer announcer_;
  std::array<QAction*, MenuEntryCount> entries_{};
};
