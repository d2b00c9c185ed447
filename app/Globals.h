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

// The program's version in numbers; what is missing in the application's version text counts as 0.
struct Version {
  int major;
  int minor;
  int revision;
};

Version ProgramVersion();

// Major and minor number as exported and printed lists show them: "1.0".
QString ShortVersion();
