// The dialogs that the menus open, and what those open in turn.

#include <QMenu>
#include <QTest>

#include "tests/storm/Moments.h"

namespace {

using Window = QWidget;

constexpr const char* Colors = "[Chessboard]\nUse Images=0\n";

void Here(Stage& stage) {
  stage.Next([&stage](Window&) { stage.Moment(); });
}

void FromMenu(Stage& stage, const char* entry) {
  Here(stage);
  stage.Choose(entry);
}

void NewQuestion(Stage& stage) {
  stage.Play(4);
  FromMenu(stage, "mnuFileNew");
}

void OpenQuestion(Stage& stage) {
  stage.Play(4);
  FromMenu(stage, "mnuFileOpen");
}

void RestartQuestion(Stage& stage) {
  stage.Play(4);
  FromMenu(stage, "mnuFileRestart");
}

void ExitQuestion(Stage& stage) {
  stage.Play(4);
  FromMenu(stage, "mnuFileExit");
}

void SolveQuestion(Stage& stage) {
  FromMenu(stage, "mnuFileSolve");
}

void OpenFileDialog(Stage& stage) {
  FromMenu(stage, "mnuFileOpen");
}

void SaveFileDialog(Stage& stage) {
  stage.Play(4);
  FromMenu(stage, "mnuFileSave");
}

void CouldNotOpen(Stage& stage) {
  Here(stage);
  stage.Window().OpenGameFile(stage.Path("missing.knight"));
}

void CommandHistory(Stage& stage) {
  stage.Play(4);
  FromMenu(stage, "mnuEditHistory");
}

void MoveHistory(Stage& stage) {
  stage.Play(4);
  FromMenu(stage, "mnuViewHistory");
}

void Options(Stage& stage) {
  stage.Next([](Window& history) { Press(history, "cmdOptionsOrUndo"); });
  MoveHistory(stage);
}

void ExportDialog(Stage& stage) {
  stage.Next([](Window& history) { history.findChild<QAction*>("mnuEditExport")->trigger(); });
  MoveHistory(stage);
}

void NotPrinted(Stage& stage) {
  stage.Next([](Window& history) { history.findChild<QAction*>("mnuEditPrint")->trigger(); });
  MoveHistory(stage);
}

void ChessboardDialog(Stage& stage) {
  FromMenu(stage, "mnuEditChessboardOpen");
}

void HighScores(Stage& stage) {
  FromMenu(stage, "mnuViewHighScores");
}

void LowScores(Stage& stage) {
  FromMenu(stage, "mnuViewLowScores");
}

void About(Stage& stage) {
  FromMenu(stage, "mnuHelpAbout");
}

void AboutDrawing(Stage& stage) {
  stage.Next([&stage](Window& about) {
    QTest::mouseDClick(about.findChild<QWidget*>("picAboutImage"), Qt::LeftButton);
    stage.After(200, [&stage] { stage.Moment(); });
  });
  stage.Choose("mnuHelpAbout");
}

void Preferences(Stage& stage) {
  FromMenu(stage, "mnuPrefs");
}

// Something that a button of the preferences opens.
void FromPreferences(Stage& stage, const char* button, Qt::MouseButton mouse) {
  stage.Next([button, mouse](Window& preferences) {
    auto* found = preferences.findChild<QWidget*>(button);
    QTest::mouseClick(found, mouse, Qt::NoModifier, found->rect().center());
  });
  Here(stage);
  stage.Choose("mnuPrefs");
}

void Chooser(Stage& stage) {
  FromPreferences(stage, "cmdLight", Qt::LeftButton);
}

void SystemColors(Stage& stage) {
  FromPreferences(stage, "cmdFrame", Qt::RightButton);
}

void DefaultsQuestion(Stage& stage) {
  FromPreferences(stage, "cmdDefaultConfiguration", Qt::LeftButton);
}

void ClearQuestion(Stage& stage) {
  FromPreferences(stage, "cmdClearScores", Qt::LeftButton);
}

void FrameWidth(Stage& stage) {
  stage.Next([](Window& preferences) {
    auto* frame = preferences.findChild<QWidget*>("cmdFrame");
    QTest::mouseClick(frame, Qt::RightButton, Qt::NoModifier, frame->rect().center());
  });
  stage.Next([](Window& menu) {
    for (QAction* entry : menu.actions()) {
      if (entry->text() != "Frame &Width...") continue;
      const QRect place = dynamic_cast<QMenu&>(menu).actionGeometry(entry);
      QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, place.center());
      return;
    }
  });
  Here(stage);
  stage.Choose("mnuPrefs");
}

}  // namespace

const std::vector<MomentRow>& DialogMoments() {
  using enum MomentKind;
  static const std::vector<MomentRow> rows{
      {"NewGameQuestion", Dialog, NewQuestion},
      {"OpenGameQuestion", Dialog, OpenQuestion},
      {"RestartQuestion", Dialog, RestartQuestion},
      {"ExitQuestion", Dialog, ExitQuestion},
      {"SolveQuestion", Dialog, SolveQuestion},
      {"TheOpenDialog", Dialog, OpenFileDialog},
      {"TheSaveDialog", Dialog, SaveFileDialog},
      {"AFileThatCouldNotBeOpened", Dialog, CouldNotOpen},
      {"TheCommandHistory", Dialog, CommandHistory},
      {"TheMoveHistory", Dialog, MoveHistory},
      {"TheOptionsOfTheMoveHistory", Dialog, Options, {"Move History"}},
      {"TheExportDialog", Dialog, ExportDialog, {"Move History"}},
      {"AListThatWasNotPrinted", Dialog, NotPrinted, {"Move History"}},
      {"TheChessboardDialog", Dialog, ChessboardDialog},
      {"TheHighScores", Dialog, HighScores},
      {"TheLowScores", Dialog, LowScores},
      {"TheAboutWindow", Dialog, About},
      {"TheAboutWindowThatDraws", Dialog, AboutDrawing},
      {"ThePreferences", Dialog, Preferences},
      {"AColorDialog", Dialog, Chooser, {"Preferences"}, Colors},
      {"APictureDialog", Dialog, Chooser, {"Preferences"}},
      {"TheSystemColors", Dialog, SystemColors, {"Preferences"}, Colors},
      {"TheFrameWidth", Dialog, FrameWidth, {"Preferences"}},
      {"TheDefaultsQuestion", Dialog, DefaultsQuestion, {"Preferences"}},
      {"TheClearingQuestion", Dialog, ClearQuestion, {"Preferences"}},
  };
  return rows;
}
