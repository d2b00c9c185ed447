#include "ui/commands/ChessboardFiles.h"

#include <tuple>

#include "storage/ChessboardFile.h"
#include "storage/clsIniFile.h"

namespace {

constexpr const char* ChessboardFilter =
    "Gallopade Nova Chessboards (*.chessboard;*.che)|*.chessboard;*.che|All Files (*.*)|*.*";

void StoreEverything(const CommandContext& context) {
  Globals& globals = context.globals;
  std::vector<IniEntry> entries = ChessboardEntries(globals.settings);
  const std::vector<IniEntry> rest =
      ExitEntries(globals.settings, context.window.Placement(), context.window.IsMinimised());
  entries.insert(entries.end(), rest.begin(), rest.end());
  globals.IniFile.Change(entries);
}

}  // namespace

void mnuEditChessboardOpen_Click(const CommandContext& context) {
  const ClockPause pause(context);
  Settings& settings = context.globals.settings;
  QString& directory = settings.PreferencesPreviousDirectory;
  const QString fileName = context.dialogs.OpenFile(
      {.directory = directory, .filter = ChessboardFilter, .mustExist = false});
  if (fileName.isEmpty()) return;
  directory = DirectoryOf(fileName);
  LoadChessboard(clsIniFile().ReadIniFileValues(fileName), settings);
  // Pictures that end the program must not be named by the settings that it starts with.
  context.window.LoadPictures();
  StoreEverything(context);
  context.window.LoadGameSetup();
  context.game.RefreshHighlight();
  context.game.RepaintWholeBoard();
  context.window.Form_Resize();
}

void mnuEditChessboardSave_Click(const CommandContext& context) {
  const ClockPause pause(context);
  QString& directory = context.globals.settings.PreferencesPreviousDirectory;
  const QString fileName = context.dialogs.SaveFile({directory, ChessboardFilter});
  if (fileName.isEmpty()) return;
  directory = DirectoryOf(fileName);
  std::ignore = SaveChessboard(fileName, context.globals.settings);
}
