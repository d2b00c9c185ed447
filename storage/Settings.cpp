#include "storage/Settings.h"

#include <array>
#include <charconv>

#include "storage/NumberParser.h"
#include "storage/SettingsTable.h"

namespace {

constexpr int MaximisedState = 2;  // the stored state; a normal window's is 0

std::optional<double> ReadTwips(const IniValues& values, const char* key) {
  const QString text = values.Value("Settings", key);
  if (text.isEmpty()) return std::nullopt;
  return LenientNumber(text);
}

QString TextOfTwips(double twips) {
  std::array<char, 400> text{};  // the longest double without an exponent has 327 characters
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), twips, std::chars_format::fixed).ptr;
  return QString::fromLatin1(text.data(), end - text.data());
}

// At exit the window's place is written after the settings up to this place.
constexpr int LastDirectoryAtExit = 2;

IniEntry EntryOf(const SettingRow& row, const Settings& settings) {
  return {row.section, row.key, TextOf(row, settings)};
}

std::vector<IniEntry> EntriesWritten(int WritingPlaces::*occasion, const Settings& settings) {
  std::vector<IniEntry> entries;
  for (const SettingRow* row : RowsWritten(occasion)) entries.push_back(EntryOf(*row, settings));
  return entries;
}

void AppendPlacement(std::vector<IniEntry>& entries, const WindowPlacement& placement,
                     bool minimised) {
  const auto append = [&entries](const char* key, const std::optional<double>& twips) {
    if (twips) entries.push_back({"Settings", key, TextOfTwips(*twips)});
  };
  if (!minimised) {
    entries.push_back(
        {"Settings", "State", QString::number(placement.Maximised ? MaximisedState : 0)});
  }
  append("Left", placement.Left);
  append("Top", placement.Top);
  append("Height", placement.Height);
  append("Width", placement.Width);
}

}  // namespace

void LoadSettings(const IniValues& values, const QString& programDirectory, Settings& settings) {
  for (const SettingRow& row : SettingsTable()) {
    SetFromText(row, values.Value(row.section, row.key), programDirectory, settings);
  }
}

WindowPlacement WindowPlacementFrom(const IniValues& values) {
  return {.Left = ReadTwips(values, "Left"),
          .Top = ReadTwips(values, "Top"),
          .Height = ReadTwips(values, "Height"),
          .Width = ReadTwips(values, "Width"),
          .Maximised = LenientInt32(values.Value("Settings", "State")) == MaximisedState};
}

std::vector<IniEntry> ExitEntries(const Settings& settings, const WindowPlacement& placement,
                                  bool minimised) {
  std::vector<IniEntry> entries;
  for (const SettingRow* row : RowsWritten(&WritingPlaces::exit)) {
    entries.push_back(EntryOf(*row, settings));
    if (row->written.exit == LastDirectoryAtExit) AppendPlacement(entries, placement, minimised);
  }
  return entries;
}

std::vector<IniEntry> PreferencesEntries(const Settings& settings) {
  return EntriesWritten(&WritingPlaces::preferences, settings);
}

std::vector<IniEntry> SessionEntries(const Settings& settings) {
  std::vector<IniEntry> entries;
  for (const SettingRow* row : RowsWritten(&WritingPlaces::exit)) {
    if (row->written.preferences == 0) entries.push_back(EntryOf(*row, settings));
  }
  return entries;
}

std::vector<IniEntry> ChessboardEntries(const Settings& settings) {
  return EntriesWritten(&WritingPlaces::chessboard, settings);
}

ReplaySettings ReplaySettingsFrom(const IniValues& values) {
  ReplaySettings replay;
  const QString speed = values.Value("Replay", "Advance Speed");
  const double number = LenientNumber(speed);
  if (!speed.isEmpty() && number >= 0.0 && number <= SlowestAdvance) replay.AdvanceSpeed = speed;
  replay.manual = LenientNumber(values.Value("Replay", "Advancement")) != 0.0;
  return replay;
}

std::vector<IniEntry> ReplayEntries(const ReplaySettings& replay) {
  return {{"Replay", "Advance Speed", replay.AdvanceSpeed},
          {"Replay", "Advancement", replay.manual ? "1" : "0"}};
}

QString DirectoryOf(const QString& pathName) {
  return pathName.left(pathName.lastIndexOf('/') + 1);
}
