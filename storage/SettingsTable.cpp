#include "storage/SettingsTable.h"

#include <algorithm>
#include <type_traits>

#include "storage/NumberParser.h"

namespace {

using enum SettingKind;

constexpr const char* General = "Settings";
constexpr const char* Position = "Position";
constexpr const char* Chessboard = "Chessboard";
constexpr const char* Highlight = "Highlight";

constexpr bool MayMiss = true;

// Section, key, kind, field, and the places at exit, with the preferences and in a chessboard file.
constexpr SettingRow Table[] = {
    {General, "Previous Directory", Text, &Settings::PreviousDirectory, {1, 0, 0}},
    {General,
     "Preferences Previous Directory",
     Text,
     &Settings::PreferencesPreviousDirectory,
     {2, 22, 0}},
    {General, "Scores Image", Text, &Settings::ScoresImage},
    {General, "About Image", Text, &Settings::AboutImage},
    {General, "Show Time", NumberBoolean, &Settings::ShowTime, {3, 0, 0}},
    {General, "Show Score", NumberBoolean, &Settings::ShowScore, {4, 0, 0}},
    {General, "Show Solve Warnings", NumberBoolean, &Settings::ShowSolveWarnings, {0, 21, 0}},
    {General,
     "Solve Refresh",
     Number,
     &Settings::SolveRefreshRate,
     {5, 0, 0},
     {1, MaximumSolveRefresh}},
    {Chessboard,
     "Corner Distance",
     Number,
     &Settings::CornerDistance,
     {0, 18, 16},
     {0, MaximumCornerDistance}},
    {Position, "Starting Position", Number, &Settings::StartingPosition, {0, 1, 0}},
    {Position, "Starting X", Number, &Settings::StartingX, {0, 2, 0}},
    {Position, "Starting Y", Number, &Settings::StartingY, {0, 3, 0}},
    {Chessboard, "Light Color", Number, &Settings::LightColor, {0, 4, 1}},
    {Chessboard, "Dark Color", Number, &Settings::DarkColor, {0, 5, 2}},
    {Chessboard, "Visited Color", Number, &Settings::VisitedColor, {0, 6, 3}},
    {Chessboard, "Knight Color", Number, &Settings::KnightColor, {0, 7, 4}},
    {Chessboard, "Light Image", Text, &Settings::LightImage, {0, 8, 5}},
    {Chessboard, "Dark Image", Text, &Settings::DarkImage, {0, 9, 6}},
    {Chessboard, "Visited Image", Text, &Settings::VisitedImage, {0, 10, 7}},
    {Chessboard, "Knight Image", Text, &Settings::KnightImage, {0, 11, 8}},
    {Highlight, "Highlight Image", Text, &Settings::HighlightImage, {0, 16, 13}},
    {Chessboard,
     "Chessboard Background Color",
     Number,
     &Settings::ChessboardBackgroundColor,
     {0, 19, 14}},
    {Chessboard,
     "Chessboard Background Image",
     Text,
     &Settings::ChessboardBackgroundImage,
     {0, 20, 15}},
    {Chessboard, "Use Images", ExactBoolean, &Settings::UseImages, {0, 12, 9, MayMiss}},
    {Chessboard, "Use Borders", ExactBoolean, &Settings::UseBorders, {0, 14, 11, MayMiss}},
    {Chessboard, "Image Positioning", Number, &Settings::ImagePositioning, {0, 13, 10, MayMiss}},
    {Highlight, "Highlight Color", Number, &Settings::HighlightColor, {0, 15, 12}},
    {Highlight, "Highlighting Method", Number, &Settings::HighlightingMethod, {0, 17, 0}},
};

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
  template <typename Choice>
  void operator()(Choice Settings::*field) const {
    using Number = std::underlying_type_t<Choice>;
    if constexpr (std::is_same_v<Number, std::int16_t>) {
      settings.*field = static_cast<Choice>(LenientInt16(text));
    } else {
      settings.*field = static_cast<Choice>(LenientInt32(text));
    }
  }
  bool IsInRange(int number) const {
    return number >= row.range.lowest && number <= row.range.highest;
  }
};

struct FieldWriter {
  const Settings& settings;

  QString operator()(QString Settings::*field) const { return settings.*field; }
  QString operator()(bool Settings::*field) const { return settings.*field ? "1" : "0"; }
  QString operator()(std::int16_t Settings::*field) const {
    return QString::number(settings.*field);
  }
  QString operator()(int Settings::*field) const { return QString::number(settings.*field); }
  template <typename Choice>
  QString operator()(Choice Settings::*field) const {
    return QString::number(static_cast<int>(settings.*field));
  }
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

std::vector<const SettingRow*> RowsWritten(int WritingPlaces::*occasion) {
  std::vector<const SettingRow*> rows;
  for (const SettingRow& row : Table) {
    if (row.written.*occasion > 0) rows.push_back(&row);
  }
  std::sort(rows.begin(), rows.end(), [occasion](const SettingRow* one, const SettingRow* other) {
    return one->written.*occasion < other->written.*occasion;
  });
  return rows;
}

void SetFromText(const SettingRow& row, const QString& text, const QString& programDirectory,
                 Settings& settings) {
  SetDefault(row, programDirectory, settings);
  if (!text.isEmpty()) std::visit(FieldReader{row, text, settings}, row.field);
}

QString TextOf(const SettingRow& row, const Settings& settings) {
  return std::visit(FieldWriter{settings}, row.field);
}
