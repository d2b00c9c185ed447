#include "tests/storm/Invariants.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QRegularExpression>
#include <QWidget>

#include "app/Globals.h"
#include "core/TimeString.h"
#include "ui/windows/game/frmGame.h"

namespace {

using Complaint = std::string;  // empty: none

Complaint FirstOf(std::initializer_list<Complaint> complaints) {
  for (const Complaint& complaint : complaints) {
    if (!complaint.empty()) return complaint;
  }
  return {};
}

bool IsOnBoard(const MoveRow& row) {
  return IsSquare(row.x, row.y);
}

// The moves made, and how often each square is among them: a game file may name one twice.
struct Moves {
  explicit Moves(const GameState& state) {
    for (int i = 0; i < state.MoveCount; ++i) {
      const MoveRow& row = state.MoveList[static_cast<std::size_t>(i)];
      if (!IsOnBoard(row)) continue;
      int& count = times[static_cast<std::size_t>(SquareIndex(row.x, row.y))];
      distinct = distinct && count == 0;
      ++count;
    }
  }

  std::array<int, SquareCount> times{};
  bool distinct = true;
};

Complaint AboutRows(const GameState& state) {
  if (state.MoveCount < 0 || state.MoveCount > SquareCount) return "MoveCount is out of range";
  if (!(state.MoveList[SquareCount] == MoveRow{0, 0})) return "row 64 was written";
  for (std::size_t i = 0; i < SquareCount; ++i) {
    const MoveRow& row = state.MoveList[i];
    const bool made = i < static_cast<std::size_t>(state.MoveCount);
    if (!IsOnBoard(row) && (made || !(row == EmptyMove))) {
      return "row " + std::to_string(i) + " names no square";
    }
    if (i > 0 && IsOnBoard(row) && !IsOnBoard(state.MoveList[i - 1])) {
      return "row " + std::to_string(i) + " was left when those before it were cleared";
    }
  }
  return {};
}

Complaint AboutBoard(const GameState& state) {
  const Moves moves(state);
  for (int x = 0; x < BoardSide; ++x) {
    for (int y = 0; y < BoardSide; ++y) {
      const std::int16_t cell = state.Cell(x, y);
      const bool listed = moves.times[static_cast<std::size_t>(SquareIndex(x, y))] > 0;
      if (cell != GameState::Visited && cell != GameState::Unvisited) return "a cell is neither";
      if ((cell == GameState::Visited) != listed) return "the list and " + SquareName(x, y);
    }
  }
  for (int i = 0; i <= BoardSide; ++i) {
    if (state.Cell(i, BoardSide) != 0 || state.Cell(BoardSide, i) != 0) return "a cell beyond 7";
  }
  return {};
}

Complaint AboutKnight(const GameState& state) {
  if (!IsSquare(state.KnightX, state.KnightY)) return "the knight is off the board";
  if (state.MoveCount > 0) {
    const MoveRow& last = state.MoveList[static_cast<std::size_t>(state.MoveCount - 1)];
    if (!(last == MoveRow{state.KnightX, state.KnightY})) return "the knight is elsewhere";
  }
  const bool noCursor = state.CursorX == -1 && state.CursorY == -1;
  if (!noCursor && !IsSquare(state.CursorX, state.CursorY)) return "the cursor is off the board";
  return {};
}

Complaint AboutSettings(const Settings& settings) {
  if (settings.SolveRefreshRate < 1 || settings.SolveRefreshRate > 32000) return "Solve Refresh";
  if (settings.CornerDistance < 0 || settings.CornerDistance > 1500) return "Corner Distance";
  return {};
}

QString CaptionPattern(const Settings& settings) {
  QString pattern = "Gallopade Nova";
  if (settings.ShowScore) pattern += ": ([0-9]|[1-5][0-9]|6[0-4])";
  if (settings.ShowTime) pattern += " - -?[0-9]+:-?[0-9]+:-?[0-9]+\\.-?[05]";
  return QRegularExpression::anchoredPattern(pattern);
}

Complaint AboutFormOfCaption(const frmGame& window, const Settings& settings) {
  const QString caption = window.windowTitle();
  if (QRegularExpression(CaptionPattern(settings)).match(caption).hasMatch()) return {};
  return "the caption reads " + caption.toStdString();
}

std::string CaptionOf(const GameState& state, const Settings& settings) {
  std::string caption = "Gallopade Nova";
  if (settings.ShowScore) caption += ": " + std::to_string(state.MoveCount);
  if (settings.ShowTime) caption += " - " + TimeString(state.ElapsedHalfSeconds);
  return caption;
}

bool IsOpen(const char* name) {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [name](const QWidget* widget) {
    return widget->isVisible() && widget->objectName() == name;
  });
}

bool IsSolveWindowOpen() {
  return IsOpen("frmSolve");
}

// Only the Solve window lets the clock run, and the command history while it takes moves back.
Complaint AboutRestingClock(frmGame& window) {
  if (QApplication::activeModalWidget() == nullptr) return {};
  const bool mayRun = IsSolveWindowOpen() || (IsOpen("frmHistory") && window.Guard().IsWorking());
  if (window.IsClockEnabled() && !mayRun) return "the clock runs behind a dialog";
  return {};
}

struct Expectation {
  MenuEntry entry;
  bool enabled;
  const char* complaint;
};

Complaint AboutEntries(const frmGame& window, std::initializer_list<Expectation> expectations) {
  for (const Expectation& row : expectations) {
    if (window.IsMenuEnabled(row.entry) != row.enabled) return row.complaint;
  }
  return {};
}

Complaint AboutRedo(const frmGame& window) {
  const GameState& state = window.State();
  if (state.MoveCount == SquareCount) return {};
  const MoveRow& next = state.MoveList[static_cast<std::size_t>(state.MoveCount)];
  return AboutEntries(window, {{MenuEntry::mnuEditRedo, !(next == EmptyMove), "Redo"}});
}

Complaint AboutGoingOn(const frmGame& window, bool over) {
  if (over && window.State().MoveCount < 2) return {};
  return AboutEntries(window, {{MenuEntry::mnuFileAutoplay, !over, "Autoplay"},
                               {MenuEntry::mnuFileSolve, !over, "Solve"}});
}

Complaint AboutGoingBack(const frmGame& window, bool over) {
  if (window.State().MoveCount < 2) return {};
  return AboutEntries(window, {{MenuEntry::mnuEditUndo, true, "Undo is off"},
                               {MenuEntry::mnuEditHistory, true, "Command History is off"},
                               {MenuEntry::mnuViewHistory, true, "Move History is off"},
                               {MenuEntry::mnuFileRestart, true, "Restart is off"},
                               {MenuEntry::mnuViewReplay, true, "Instant Replay is off"},
                               {MenuEntry::mnuFileSave, !over, "Save"},
                               {MenuEntry::mnuFileSaveReplay, over, "Save Replay"}});
}

Complaint AboutRest(frmGame& window, bool distinct) {
  const GameState& state = window.State();
  if (state.ApplyingMoves) return "ApplyingMoves has stayed set";
  if (state.SolverRunning) return "SolverRunning has stayed set";
  if (!window.PlayerMayAct()) return "the window is still at work";
  if (state.FirstMoveMade != (state.MoveCount > 0)) return "FirstMoveMade and MoveCount differ";
  const Settings& settings = window.Context().globals.settings;
  if (window.findChild<QAction*>("mnuViewScore")->isChecked() != settings.ShowScore ||
      window.findChild<QAction*>("mnuViewTime")->isChecked() != settings.ShowTime) {
    return "a check mark of the View menu";
  }
  if (!distinct) return {};
  const bool over = window.Context().game.CheckIfGameOver(state.KnightX, state.KnightY);
  if (over && state.MoveCount >= 2 && window.IsClockEnabled()) return "the clock runs on";
  return FirstOf({AboutRedo(window), AboutGoingOn(window, over), AboutGoingBack(window, over)});
}

GameState WithMovesToRedo(const GameState& state) {
  GameState all = state;
  while (all.MoveCount < SquareCount &&
         !(all.MoveList[static_cast<std::size_t>(all.MoveCount)] == EmptyMove)) {
    ++all.MoveCount;
  }
  return all;
}

}  // namespace

// While the Solve window is open, the rows behind the moves made are the search's own.
bool Inspector::NamesSquareTwice(const GameState& state) {
  const bool twice =
      IsSolveWindowOpen() ? !Moves(state).distinct : !Moves(WithMovesToRedo(state)).distinct;
  if (twice) doubtfulGame_ = state.GameSerial;
  return doubtfulGame_ == state.GameSerial;
}

Complaint Inspector::ComplaintAbout(frmGame& window, bool idle) {
  const GameState& state = window.State();
  const Settings& settings = window.Context().globals.settings;
  const bool distinct = !NamesSquareTwice(state);
  return FirstOf({AboutRows(state), distinct ? AboutBoard(state) : Complaint(), AboutKnight(state),
                  AboutSettings(settings), AboutRestingClock(window),
                  AboutFormOfCaption(window, settings),
                  idle ? AboutRest(window, distinct) : Complaint()});
}

Complaint ComplaintAboutCaption(frmGame& window) {
  const std::string wanted = CaptionOf(window.State(), window.Context().globals.settings);
  const std::string shown = window.windowTitle().toStdString();
  return shown == wanted ? "" : "the caption reads " + shown + " instead of " + wanted;
}
