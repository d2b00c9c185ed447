#pragma once

#include <optional>

#include <QString>

#include "storage/ErrorTable.h"
#include "storage/IniText.h"
#include "storage/Settings.h"

// Takes the look from the values of a chessboard file. What they do not say takes its default,
// except for "Use Images", "Use Borders" and "Image Positioning", which stay as they are.
void LoadChessboard(const IniValues& values, Settings& settings);

// Writes the look; nothing of a file that was there before survives, unless writing fails.
[[nodiscard]] std::optional<ProgramError> SaveChessboard(const QString& pathName,
                                                         const Settings& settings);
