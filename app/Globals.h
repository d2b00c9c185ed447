#pragma once

#include <QString>

#include "storage/Settings.h"
#include "storage/clsIniFile.h"

// The program-wide state that is not the game's: made at start-up, passed on by reference.
struct Globals {
  QString ProgramDirectory;  // the executable's, ends in "/"
  clsIniFile IniFile;
  QString IniFilePathName;
  Settings settings;
};
