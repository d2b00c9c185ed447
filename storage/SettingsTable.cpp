#include "storage/SettingsTable.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "storage/NumberParser.h"

namespace {

using enum SettingKind;

constexpr const char* General = "Settings";
constexpr const char* Position = "Position";
constexpr const char* Chessboard = "Chessboard";
constexpr const char* Highlight = "Highlight";

constexpr std::array<SettingRow, 28> Table = {{
    {General, "Previous Directory", Text, &Settings::PreviousDirectory},
    {General, "Preferences Previous Directory", Text, &Settings::PreferencesPreviousDirectory},
    {General, "Scores Image", Text, &Settings::ScoresImage},
    {General, "About Image", Text, &Settings::AboutImage},
    {General, "Show Time", NumberBoolean, &Settings::ShowTime},
    {General, "Show Score", NumberBoolean, &Settings::ShowScore},
    {General, "Show Solve Warnings", NumberBoolean, &Settings::ShowSolveWarnings},
    {General, "Solve Refresh", Number, &Settings::SolveRefreshRate, 1, 32000},
    {Chessboard, "Corner Distance", Number, &Settings::CornerDistance, 0, 1500},
    {Position, "Starting Position", Number, &Settings::StartingPosition},
    {Position, "Starting X", Number, &Settings::StartingX},
    {Position, "Starting Y", Number, &Settings::StartingY},
    {Chessboard, "Light Color", Number, &Settings::LightColor},
    {Chessboard, "Dark Color", Number, &Settings::DarkColor},
    {Chessboard, "Visited Color", Number, &Settings::VisitedColor},
    {Chessboard, "Knight Color", Number, &Settings::KnightColor},
    {Chessboard, "Light Image", Text, &Settings::LightImage},
    {Chessboard, "Dark Image", Text, &Settings::DarkImage},
    {Chessboard, "Visited Image", Text, &Settings::VisitedImage},
    {Chessboard, "Knight Image", Text, &Settings::KnightImage},
    {Highlight, "Highlight Image", Text, &Settings::HighlightImage},
    {Chessboard, "Chessboard Background Color", Number, &Settings::ChessboardBackgroundColor},
    {Chessboard, "Chessboard Background Image", Text, &Settings::ChessboardBackgroundImage},
    {Chessboard, "Use Images", ExactBoolean, &Settings::UseImages},
    {Chessboard, "Use Borders", ExactBoolean, &Settings::UseBorders},
    {Chessboard, "Image Positioning", Number, &Settings::ImagePositioning},
    {Highlight, "Highlight Color", Number, &Settings::HighlightColor},
    {Highlight, "Highlighting Method", Number, &Settings::HighlightingMethod},
}};

// One function for each type that a field can have.
struct FieldReader {
  const SettingRow& row;
  const QString& text;
  Settings& settings;

  void operator()(QString Settings::*field) const { settings.*field = text; }
  void operator()(bool Settings::*field) const {
    settings.*field = row.kind == ExactBoolean ? text == "1" : LenientNumber(text) != 0.0;
  }
  void operator()(std::int16_t Settings::*field) const {
    const std::int16_t number = LenientInt16(text);
    if (IsInRange(number)) settings.*field = number;
  }
  void operator()(int Settings::*field) const {
    const std::int32_t number = LenientInt32(text);
    if (IsInRange(number)) settings.*field = number;
  }
  bool IsInRange(int number) const { return number >= row.lowest && number <= row.highest; }
};

struct FieldWriter {
  const Settings& settings;

  QString operator()(QString Settings::*field) const { return settings.*field; }
  QString operator()(bool Settings::*field) const { return settings.*field ? "1" : "0"; }
  QString operator()(std::int16_t Settings::*field) const {
    return QString::number(settings.*field);
  }
  QString operator()(int Settings::*field) const { return QString::number(settings.*field); }
};

void SetDefault(const SettingRow& row, const QString& programDirectory, Settings& settings) {
  Settings defaults;
  defaults.PreviousDirectory = programDirectory;
  defaults.PreferencesPreviousDirectory = programDirectory;
  std::visit([&](auto field) { settings.*field = defaults.*field; }, row.field);
}

}  // namespace

std::span<const SettingRow> SettingsTable() {
  return Table;
}

const SettingRow& SettingOf(const char* key) {
  return *std::find_if(Table.begin(), Table.end(),
                       [key](const SettingRow& row) { return std::strcmp(row.key, key) == 0; });
}

void SetFromText(const SettingRow& row, const QString& text, const QString& programDirectory,
                 Settings& settings) {
  SetDefault(row, programDirectory, settings);
  if (!text.isEmpty()) std::visit(FieldReader{row, text, settings}, row.field);
}

QString TextOf(const SettingRow& row, const Settings& settings) {
  return std::visit(FieldWriter{settings}, row.field);
}
