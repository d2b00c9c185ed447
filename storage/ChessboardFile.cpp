#include "storage/ChessboardFile.h"

#include "storage/FileWriter.h"
#include "storage/SettingsTable.h"

namespace {

void Load(const SettingRow& row, const QString& text, Settings& settings) {
  SetFromText(row, text, QString(), settings);
}

// In these files "1" is the only other choice than 0, and silence changes nothing.
void LoadChoice(const SettingRow& row, const QString& text, Settings& settings) {
  if (!text.isEmpty()) Load(row, text == "1" ? "1" : "0", settings);
}

bool IsChoice(const QString& key) {
  return key == "Use Images" || key == "Use Borders" || key == "Image Positioning";
}

}  // namespace

void LoadChessboard(const IniValues& values, Settings& settings) {
  for (const IniEntry& entry : ChessboardEntries(settings)) {
    const SettingRow& row = SettingOf(entry.key.toLatin1());
    const QString text = values.Value(entry.section, entry.key);
    (IsChoice(entry.key) ? LoadChoice : Load)(row, text, settings);
  }
}

std::optional<ProgramError> SaveChessboard(const QString& pathName, const Settings& settings) {
  return WriteFile(pathName, ReplaceIniValues(QByteArray(), ChessboardEntries(settings)));
}
