#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QString>

#include "core/GameState.h"
#include "storage/BoardLook.h"
#include "storage/IniText.h"

inline constexpr int MaximumSolveRefresh = 32000;
inline constexpr int MaximumCornerDistance = 1500;  // twips
inline constexpr int SlowestAdvance = 20;           // of a replay: tenths of a second a move

// All lasting preferences. The values given here are the defaults; those of the two directories are
// the program directory.
struct Settings : GameOptions, BoardLook {
  // Where file dialogs begin: those of games and move lists, and those of pictures and chessboards.
  // Both end in "/", unless a file says otherwise.
  QString PreviousDirectory;
  QString PreferencesPreviousDirectory;
  QString ScoresImage = "Scores.gif";
  QString AboutImage = "About.gif";
  bool ShowSolveWarnings = true;
  // How many steps of the search pass between two drawings of the board.
  std::int16_t SolveRefreshRate = 1000;
  int CornerDistance = 240;  // twips
  QString LightImage = "Wood Light.gif";
  QString DarkImage = "Wood Dark.gif";
  QString VisitedImage = "Wood Visited.gif";
  QString KnightImage = "Wood Knight.gif";
  QString HighlightImage = "Wood Highlight.gif";
  QString ChessboardBackgroundImage = "Wood Chessboard.gif";
  Color ChessboardBackgroundColor = SystemColor(0x0F);
};

// Bounds of the main window in its normal state, in twips; what is missing is the window's choice.
struct WindowPlacement {
  std::optional<double> Left = std::nullopt;
  std::optional<double> Top = std::nullopt;
  std::optional<double> Height = std::nullopt;
  std::optional<double> Width = std::nullopt;
  bool Maximised = false;
};

// Takes every setting afresh; one that is missing, empty or out of its range takes its default.
// programDirectory ends in "/".
void LoadSettings(const IniValues& values, const QString& programDirectory, Settings& settings);

WindowPlacement WindowPlacementFrom(const IniValues& values);

// What is written when the program ends; a minimised window leaves the stored state alone.
std::vector<IniEntry> ExitEntries(const Settings& settings, const WindowPlacement& placement,
                                  bool minimised);

// What the preferences dialog decides.
std::vector<IniEntry> PreferencesEntries(const Settings& settings);

// What is written at exit and not with the preferences: what changes outside their dialog, apart
// from the window's place. Without it, reading the settings afresh would lose what the player
// changed since the start.
std::vector<IniEntry> SessionEntries(const Settings& settings);

// What a chessboard file holds.
std::vector<IniEntry> ChessboardEntries(const Settings& settings);

struct ReplaySettings {
  QString AdvanceSpeed = "5";  // tenths of a second a move, kept as the text that was read
  bool manual = false;
};

ReplaySettings ReplaySettingsFrom(const IniValues& values);
std::vector<IniEntry> ReplayEntries(const ReplaySettings& replay);

// The directory of a file as settings keep it, ending in "/".
QString DirectoryOf(const QString& pathName);
