#include "ui/windows/game/GameMenu.h"

#include <algorithm>
#include <optional>

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "ui/commands/ChessboardFiles.h"
#include "ui/commands/CommandHistory.h"
#include "ui/commands/GameFiles.h"
#include "ui/commands/MenuCommands.h"
#include "ui/commands/Replay.h"
#include "ui/commands/Solve.h"
#include "ui/windows/game/frmGame.h"

namespace {

using Command = void (*)(const CommandContext&);

struct MenuRow {
  const char* name = nullptr;  // none: a separator
  const char* caption = nullptr;
  const char* shortcut = nullptr;
  Command command = nullptr;  // none: the submenu of the chessboard commands
  std::optional<MenuEntry> entry = std::nullopt;
};

constexpr MenuRow Separator{};

constexpr MenuRow FileRows[] = {
    {"mnuFileNew", "&New", "F2", mnuFileNew_Click},
    {"mnuFileOpen", "&Open...", "Ctrl+O", mnuFileOpen_Click},
    {"mnuFileSave", "&Save...", "Ctrl+S", mnuFileSave_Click, MenuEntry::mnuFileSave},
    {"mnuFileRestart", "&Restart", nullptr, mnuFileRestart_Click, MenuEntry::mnuFileRestart},
    Separator,
    {"mnuFileSolve", "So&lve...", nullptr, mnuFileSolve_Click, MenuEntry::mnuFileSolve},
    {"mnuFileAutoplay", "&Autoplay", nullptr, mnuFileAutoplay_Click, MenuEntry::mnuFileAutoplay},
    Separator,
    {"mnuFileOpenReplay", "O&pen Replay...", nullptr, mnuFileOpenReplay_Click},
    {"mnuFileSaveReplay", "Sa&ve Replay...", nullptr, mnuFileSaveReplay_Click,
     MenuEntry::mnuFileSaveReplay},
    Separator,
    {"mnuFileExit", "E&xit\tAlt+F4", "Alt+F4", mnuFileExit_Click},
};

constexpr MenuRow EditRows[] = {
    {"mnuEditUndo", "&Undo", "Ctrl+Z", mnuEditUndo_Click, MenuEntry::mnuEditUndo},
    {"mnuEditRedo", "&Redo", "Ctrl+Y", mnuEditRedo_Click, MenuEntry::mnuEditRedo},
    {"mnuEditHistory", "&Command History...", nullptr, mnuEditHistory_Click,
     MenuEntry::mnuEditHistory},
    Separator,
    {"mnuEditChessboard", "Chess&board"},
    Separator,
    {"mnuPrefs", "&Preferences...", nullptr, mnuPrefs_Click},
};

constexpr MenuRow ChessboardRows[] = {
    {"mnuEditChessboardOpen", "&Open...", nullptr, mnuEditChessboardOpen_Click},
    {"mnuEditChessboardSave", "&Save...", nullptr, mnuEditChessboardSave_Click},
};

constexpr MenuRow ViewRows[] = {
    {"mnuViewReplay", "&Instant Replay...", "Ctrl+R", mnuViewReplay_Click,
     MenuEntry::mnuViewReplay},
    {"mnuViewHistory", "&Move History...", nullptr, mnuViewHistory_Click,
     MenuEntry::mnuViewHistory},
    Separator,
    {"mnuViewScore", "Show &Score", nullptr, mnuViewScore_Click, MenuEntry::mnuViewScore},
    {"mnuViewTime", "Show &Time", nullptr, mnuViewTime_Click, MenuEntry::mnuViewTime},
    Separator,
    {"mnuViewHighScores", "&High Scores...", nullptr, mnuViewHighScores_Click},
    {"mnuViewLowScores", "&Low Scores...", nullptr, mnuViewLowScores_Click},
};

constexpr MenuRow HelpRows[] = {
    {"mnuHelpContents", "&Contents", "F1", mnuHelpContents_Click},
    {"mnuHelpHowToPlay", "&How to Play", nullptr, mnuHelpHowToPlay_Click},
    Separator,
    {"mnuHelpAbout", "&About Gallopade Nova...", nullptr, mnuHelpAbout_Click},
};

class MenuBuilder {
 public:
  MenuBuilder(frmGame& window, Announcer& announcer, std::array<QAction*, MenuEntryCount>& entries)
      : window_(window), announcer_(announcer), entries_(entries) {}

  template <std::size_t Count>
  void Fill(QMenu* menu, const char* name, const MenuRow (&rows)[Count]) {
    menu->setObjectName(name);
    menu->setAccessibleName(menu->title().remove('&'));
    announcer_.SayOpeningOf(*menu);
    for (const MenuRow& row : rows) AddRow(menu, row);
  }

 private:
  void AddRow(QMenu* menu, const MenuRow& row) {
    if (row.name == nullptr) {
      menu->addSeparator()->setObjectName(QString("mnuSeparator%1").arg(separators_++));
    } else if (row.command == nullptr) {
      Fill(AddSubmenu(menu, row), row.name, ChessboardRows);
    } else {
      AddEntry(menu, row);
    }
  }

  // A screen reader does not find out by itself that the entry leads to a menu, nor that the player
  // has come back from there. Later, after the entry.
  QMenu* AddSubmenu(QMenu* menu, const MenuRow& row) {
    QMenu* submenu = menu->addMenu(row.caption);
    const auto tellKind = [&announcer = announcer_, submenu] {
      if (!submenu->isVisible()) announcer.Say("menu");
    };
    const auto tellEntry = [menu, submenu] {
      if (menu->activeAction() != submenu->menuAction()) return;
      QAccessibleEvent event(menu, QAccessible::Focus);
      event.setChild(static_cast<int>(menu->actions().indexOf(submenu->menuAction())));
      QAccessible::updateAccessibility(&event);
    };
    QObject::connect(submenu->menuAction(), &QAction::hovered, &window_, tellKind,
                     Qt::QueuedConnection);
    QObject::connect(submenu, &QMenu::aboutToHide, &window_, tellEntry, Qt::QueuedConnection);
    return submenu;
  }

  void AddEntry(QMenu* menu, const MenuRow& row) {
    QAction* action = menu->addAction(row.caption);
    action->setObjectName(row.name);
    // No platform may move Preferences, About or Exit to a menu of its own.
    action->setMenuRole(QAction::NoRole);
    if (row.shortcut != nullptr) action->setShortcut(QKeySequence(row.shortcut));
    if (row.entry) entries_[static_cast<std::size_t>(*row.entry)] = action;
    QObject::connect(action, &QAction::triggered, &window_, [window = &window_, action, row] {
      const auto choose = [window, action, row] { Choose(*window, *action, row.command); };
      if (!QAccessible::isActive() || window->IsHandActing()) {
        choose();
      } else {
        // A screen reader that chose the entry waits for an answer, and not until a dialog closes.
        QMetaObject::invokeMethod(window, choose, Qt::QueuedConnection);
      }
    });
  }

  // Dialogs keep mouse and keys away, but not a screen reader.
  static void Choose(frmGame& window, QAction& action, Command command) {
    const bool reachable = QApplication::activeModalWidget() == nullptr;
    // As every close, it is remembered while work is going on.
    if (reachable && command == mnuFileExit_Click) return command(window.Context());
    const bool done = reachable && window.Perform([&] { command(window.Context()); });
    if (!done && action.isCheckable()) action.toggle();  // back: Qt has toggled it already
  }

  frmGame& window_;
  Announcer& announcer_;
  std::array<QAction*, MenuEntryCount>& entries_;
  int separators_ = 0;
};

}  // namespace

GameMenu::GameMenu(frmGame& window) {
  MenuBuilder builder(window, announcer_, entries_);
  QMenuBar* bar = window.menuBar();
  builder.Fill(bar->addMenu("&File"), "mnuFile", FileRows);
  builder.Fill(bar->addMenu("&Edit"), "mnuEdit", EditRows);
  builder.Fill(bar->addMenu("&View"), "mnuView", ViewRows);
  builder.Fill(bar->addMenu("&Help"), "mnuHelp", HelpRows);
  Entry(MenuEntry::mnuViewScore).setCheckable(true);
  Entry(MenuEntry::mnuViewTime).setCheckable(true);
}

const QAction* GameMenu::DisabledEntryOf(const QKeySequence& keys) const {
  const auto entry = std::find_if(entries_.begin(), entries_.end(), [&](const QAction* action) {
    return !action->isEnabled() && action->shortcut() == keys;
  });
  return entry == entries_.end() ? nullptr : *entry;
}
