#pragma once

// The files that lie in the program's own directory.
inline constexpr const char* SettingsFileName = "GallopadeNova.ini";
inline constexpr const char* ScoreFileName = "Scores.dat";
inline constexpr const char* HelpFileName = "GallopadeNova.hlp";
// There only while the pictures of the look are read.
inline constexpr const char* ReadingMarkName = ".gallopade-reading";
