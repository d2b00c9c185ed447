#include "ui/windows/game/GameMenu.h"

#include <optional>

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "ui/windows/game/frmGame.h"

namespace {

using Handler = void (frmGame::*)();

struct MenuRow {
  const char* name = nullptr;  // none: a separator
  const char* caption = nullptr;
  const char* shortcut = nullptr;
  Handler handler = nullptr;  // none: a submenu, filled from the rows that follow under its name
  std::optional<MenuEntry> entry = std::nullopt;
};

constexpr MenuRow Separator{};

constexpr MenuRow FileRows[] = {
    {"mnuFileNew", "&New", "F2", &frmGame::mnuFileNew_Click},
    {"mnuFileOpen", "&Open...", "Ctrl+O", &frmGame::mnuFileOpen_Click},
    {"mnuFileSave", "&Save...", "Ctrl+S", &frmGame::mnuFileSave_Click, MenuEntry::mnuFileSave},
    {"mnuFileRestart", "&Restart", nullptr, &frmGame::mnuFileRestart_Click,
     MenuEntry::mnuFileRestart},
    Separator,
    {"mnuFileSolve", "So&lve...", nullptr, &frmGame::mnuFileSolve_Click, MenuEntry::mnuFileSolve},
    {"mnuFileAutoplay", "&Autoplay", nullptr, &frmGame::mnuFileAutoplay_Click,
     MenuEntry::mnuFileAutoplay},
    Separator,
    {"mnuFileOpenReplay", "O&pen Replay...", nullptr, &frmGame::mnuFileOpenReplay_Click},
    {"mnuFileSaveReplay", "Sa&ve Replay...", nullptr, &frmGame::mnuFileSaveReplay_Click,
     MenuEntry::mnuFileSaveReplay},
    Separator,
    {"mnuFileExit", "E&xit\tAlt+F4", "Alt+F4", &frmGame::mnuFileExit_Click},
};

constexpr MenuRow EditRows[] = {
    {"mnuEditUndo", "&Undo", "Ctrl+Z", &frmGame::mnuEditUndo_Click, MenuEntry::mnuEditUndo},
    {"mnuEditRedo", "&Redo", "Ctrl+Y", &frmGame::mnuEditRedo_Click, MenuEntry::mnuEditRedo},
    {"mnuEditHistory", "&Command History...", nullptr, &frmGame::mnuEditHistory_Click,
     MenuEntry::mnuEditHistory},
    Separator,
    {"mnuEditChessboard", "Chess&board"},
    Separator,
    {"mnuPrefs", "&Preferences...", nullptr, &frmGame::mnuPrefs_Click},
};

constexpr MenuRow ChessboardRows[] = {
    {"mnuEditChessboardOpen", "&Open...", nullptr, &frmGame::mnuEditChessboardOpen_Click},
    {"mnuEditChessboardSave", "&Save...", nullptr, &frmGame::mnuEditChessboardSave_Click},
};

constexpr MenuRow ViewRows[] = {
    {"mnuViewReplay", "&Instant Replay...", "Ctrl+R", &frmGame::mnuViewReplay_Click,
     MenuEntry::mnuViewReplay},
    {"mnuViewHistory", "&Move History...", nullptr, &frmGame::mnuViewHistory_Click,
     MenuEntry::mnuViewHistory},
    Separator,
    {"mnuViewScore", "Show &Score", nullptr, &frmGame::mnuViewScore_Click, MenuEntry::mnuViewScore},
    {"mnuViewTime", "Show &Time", nullptr, &frmGame::mnuViewTime_Click, MenuEntry::mnuViewTime},
    Separator,
    {"mnuViewHighScores", "&High Scores...", nullptr, &frmGame::mnuViewHighScores_Click},
    {"mnuViewLowScores", "&Low Scores...", nullptr, &frmGame::mnuViewLowScores_Click},
};

constexpr MenuRow HelpRows[] = {
    {"mnuHelpContents", "&Contents", "F1", &frmGame::mnuHelpContents_Click},
    {"mnuHelpHowToPlay", "&How to Play", nullptr, &frmGame::mnuHelpHowToPlay_Click},
    Separator,
    {"mnuHelpAbout", "&About Gallopade Nova...", nullptr, &frmGame::mnuHelpAbout_Click},
};

class MenuBuilder {
 public:
  MenuBuilder(frmGame& window, std::array<QAction*, MenuEntryCount>& entries)
      : window_(window), entries_(entries) {}

  template <std::size_t Count>
  void Fill(QMenu* menu, const char* name, const MenuRow (&rows)[Count]) {
    menu->setObjectName(name);
    for (const MenuRow& row : rows) AddRow(menu, row);
  }

 private:
  void AddRow(QMenu* menu, const MenuRow& row) {
    if (row.name == nullptr) {
      menu->addSeparator()->setObjectName(QString("mnuSeparator%1").arg(separators_++));
    } else if (row.handler == nullptr) {
      Fill(menu->addMenu(row.caption), row.name, ChessboardRows);
    } else {
      AddEntry(menu, row);
    }
  }

  void AddEntry(QMenu* menu, const MenuRow& row) {
    QAction* action = menu->addAction(row.caption);
    action->setObjectName(row.name);
    // No platform may move Preferences, About or Exit to a menu of its own.
    action->setMenuRole(QAction::NoRole);
    if (row.shortcut != nullptr) action->setShortcut(QKeySequence(row.shortcut));
    if (row.entry) entries_[static_cast<std::size_t>(*row.entry)] = action;
    QObject::connect(action, &QAction::triggered, &window_, [window = &window_, action, row] {
      const auto choose = [window, action, row] { Choose(*window, *action, row.handler); };
      if (!QAccessible::isActive() || window->IsHandActing()) {
        choose();
      } else {
        // A screen reader that chose the entry waits for an answer, and not until a dialog closes.
        QMetaObject::invokeMethod(window, choose, Qt::QueuedConnection);
      }
    });
  }

  // Dialogs keep mouse and keys away, but not a screen reader.
  static void Choose(frmGame& window, QAction& action, Handler handler) {
    const bool reachable = QApplication::activeModalWidget() == nullptr;
    // As every close, it is remembered while work is going on.
    if (reachable && handler == &frmGame::mnuFileExit_Click) return window.mnuFileExit_Click();
    const bool done = reachable && window.Perform([&] { (window.*handler)(); });
    if (!done && action.isCheckable()) action.toggle();  // back: the toolkit has toggled it already
  }

  frmGame& window_;
  std::array<QAction*, MenuEntryCount>& entries_;
  int separators_ = 0;
};

}  // namespace

GameMenu::GameMenu(frmGame& window) {
  MenuBuilder builder(window, entries_);
  QMenuBar* bar = window.menuBar();
  builder.Fill(bar->addMenu("&File"), "mnuFile", FileRows);
  builder.Fill(bar->addMenu("&Edit"), "mnuEdit", EditRows);
  builder.Fill(bar->addMenu("&View"), "mnuView", ViewRows);
  builder.Fill(bar->addMenu("&Help"), "mnuHelp", HelpRows);
  Entry(MenuEntry::mnuViewScore).setCheckable(true);
  Entry(MenuEntry::mnuViewTime).setCheckable(true);
}
