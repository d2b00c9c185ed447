#include "tests/storm/Deeds.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

#include "tests/support/Games.h"
#include "ui/board/BoardView.h"

namespace {

QWidget& WindowWithInput(Stage& stage) {
  if (QWidget* popup = QApplication::activePopupWidget()) return *popup;
  if (QWidget* modal = QApplication::activeModalWidget()) return *modal;
  return stage.Window();
}

// As a screen reader does it: no dialog is in its way.
void ChooseEntry(Stage& stage, const char* name) {
  stage.Choose(name);
}

// Comes from the keyboard through Qt, which knows what a dialog keeps away.
void Press(Stage& stage, const QKeySequence& keys) {
  const QKeyCombination key = keys[0];
  QTest::keyClick(WindowWithInput(stage).windowHandle(), key.key(), key.keyboardModifiers());
  if (&WindowWithInput(stage) == &stage.Window()) return;
  QTest::keyClick(stage.Window().windowHandle(), key.key(), key.keyboardModifiers());
}

void PressShortcut(Stage& stage, const char* keys) {
  Press(stage, QKeySequence(keys));
}

QPoint PlaceOf(Stage& stage, const char* square) {
  BoardView& board = stage.Window().Board();
  return board.mapTo(&stage.Window(), board.SquareRectangle(IndexOf(square)).center());
}

// A free square a knight's move away, whether or not the game has begun.
const char* LegalSquare(Stage& stage) {
  return stage.State().MoveCount == 3 ? "D6" : "C7";
}

void ClickSquare(Stage& stage, const char*) {
  QTest::mouseClick(stage.Window().windowHandle(), Qt::LeftButton, Qt::NoModifier,
                    PlaceOf(stage, LegalSquare(stage)));
}

void MovePointer(Stage& stage, const char*) {
  QTest::mouseMove(stage.Window().windowHandle(), PlaceOf(stage, "H8"));
  QTest::mouseMove(stage.Window().windowHandle(), PlaceOf(stage, "G1"));
}

void CloseMainWindow(Stage& stage, const char*) {
  stage.Window().windowHandle()->close();
}

void CloseWithBox(Stage& stage, const char*) {
  QWidget& window = WindowWithInput(stage);
  if (&window != &stage.Window()) window.windowHandle()->close();
}

void Escape(Stage& stage, const char*) {
  QTest::keyClick(WindowWithInput(stage).windowHandle(), Qt::Key_Escape);
}

void Quit(Stage&, const char*) {
  QApplication::closeAllWindows();
}

}  // namespace

const std::vector<DeedRow>& Deeds() {
  using enum Reach;
  static const std::vector<DeedRow> rows{
      {"mnuFileNew", Blocked, ChooseEntry, {"done", "New Game?", "done", "done"}},
      {"mnuFileOpen", Blocked, ChooseEntry, {"Open", "Open Game?", "Open", "Open"}},
      {"mnuFileSave", Blocked, ChooseEntry, {"", "Save As", "", ""}},
      {"mnuFileRestart", Blocked, ChooseEntry, {"", "Restart?", "Restart?", ""}},
      {"mnuFileSolve", Blocked, ChooseEntry, {"Solve?", "Solve?", "", "Solve?"}},
      {"mnuFileAutoplay", Blocked, ChooseEntry, {"done", "done", "", "done"}},
      {"mnuFileOpenReplay", Blocked, ChooseEntry, {"Open", "Open Game?", "Open", "Open"}},
      {"mnuFileSaveReplay", Blocked, ChooseEntry, {"", "", "Save As", ""}},
      {"mnuFileExit", Closing, ChooseEntry, {"closed", "Exit?", "closed", "closed"}},
      {"mnuEditUndo", Blocked, ChooseEntry, {"", "done", "done", ""}},
      {"mnuEditRedo", Blocked, ChooseEntry, {"", "done", "", ""}},
      {"mnuEditHistory", Blocked, ChooseEntry, {"", "Command History", "Command History", ""}},
      {"mnuEditChessboardOpen", Blocked, ChooseEntry, {"Open", "Open", "Open", "Open"}},
      {"mnuEditChessboardSave", Blocked, ChooseEntry, {"Save As", "Save As", "Save As", "Save As"}},
      {"mnuPrefs",
       Blocked,
       ChooseEntry,
       {"Preferences", "Preferences", "Preferences", "Preferences"}},
      {"mnuViewReplay", Blocked, ChooseEntry, {"", "Replay, End Replay", "Replay, End Replay", ""}},
      {"mnuViewHistory", Blocked, ChooseEntry, {"", "Move History", "Move History", ""}},
      {"mnuViewScore", Blocked, ChooseEntry, {"done", "done", "done", "done"}},
      {"mnuViewTime", Blocked, ChooseEntry, {"done", "done", "done", "done"}},
      {"mnuViewHighScores",
       Blocked,
       ChooseEntry,
       {"High Scores", "High Scores", "High Scores", "High Scores"}},
      {"mnuViewLowScores",
       Blocked,
       ChooseEntry,
       {"Low Scores", "Low Scores", "Low Scores", "Low Scores"}},
      {"mnuHelpContents", Blocked, ChooseEntry, {"done", "done", "done", "done"}},
      {"mnuHelpHowToPlay", Blocked, ChooseEntry, {"done", "done", "done", "done"}},
      {"mnuHelpAbout",
       Blocked,
       ChooseEntry,
       {"About Gallopade Nova", "About Gallopade Nova", "About Gallopade Nova",
        "About Gallopade Nova"}},
      {"F2", Blocked, PressShortcut, {"done", "New Game?", "done", "done"}},
      {"Ctrl+O", Blocked, PressShortcut, {"Open", "Open Game?", "Open", "Open"}},
      {"Ctrl+S", Blocked, PressShortcut, {"", "Save As", "", ""}},
      {"Ctrl+Z", Blocked, PressShortcut, {"", "done", "done", ""}},
      {"Ctrl+Y", Blocked, PressShortcut, {"", "done", "", ""}},
      {"Ctrl+R", Blocked, PressShortcut, {"", "Replay, End Replay", "Replay, End Replay", ""}},
      {"F1", Help, PressShortcut, {"done", "done", "done", "done"}},
      {"Alt+F4", Closing, PressShortcut, {"closed", "Exit?", "closed", "closed"}},
      {"Backspace", Blocked, PressShortcut, {"", "done", "done", ""}},
      {"End", Blocked, PressShortcut, {"done", "done", "done", "done"}},
      {"AClick", Blocked, ClickSquare, {"done", "done", "", "done"}},
      {"ThePointer", Blocked, MovePointer, {"done", "done", "", "done"}},
      {"Close", Closing, CloseMainWindow, {"closed", "Exit?", "closed", "closed"}},
      {"CloseBox", CloseBox, CloseWithBox, {"", "", "", ""}},
      {"Escape", CloseBox, Escape, {"", "", "", ""}},
      {"Quit", Quit, ::Quit, {"closed", "Exit?", "closed", "closed"}},
  };
  return rows;
}
