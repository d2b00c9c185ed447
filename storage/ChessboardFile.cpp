#include "storage/ChessboardFile.h"

#include "storage/FileWriter.h"
#include "storage/SettingsTable.h"

namespace {

void Load(const SettingRow& row, const QString& text, Settings& settings) {
  if (!row.written.mayMissInChessboards) return SetFromText(row, text, QString(), settings);
  if (!text.isEmpty()) SetFromText(row, text == "1" ? "1" : "0", QString(), settings);
}

}  // namespace

void LoadChessboard(const IniValues& values, Settings& settings) {
  for (const SettingRow* row : RowsWritten(&WritingPlaces::chessboard)) {
    Load(*row, values.Value(row->section, row->key), settings);
  }
}

std::optional<ProgramError> SaveChessboard(const QString& pathName, const Settings& settings) {
  return WriteFile(pathName, ReplaceIniValues(QByteArray(), ChessboardEntries(settings)));
}
