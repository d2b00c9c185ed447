#pragma once

#include <optional>

#include <QString>

#include "storage/ErrorTable.h"
#include "storage/Settings.h"
#include "storage/clsIniFile.h"

// Takes the look from a chessboard file. What the file does not say takes its default, except for
// "Use Images", "Use Borders" and "Image Positioning", which stay as they are. A file that cannot
// be read says nothing.
void LoadChessboard(const clsIniFile& iniFile, const QString& pathName, Settings& settings);

// Writes the look; nothing of a file that was there before survives, unless writing fails.
std::optional<ProgramError> SaveChessboard(const QString& pathName, const Settings& settings);
