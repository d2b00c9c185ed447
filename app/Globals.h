#pragma once

#include <QString>

#include "storage/KeptFile.h"
#include "storage/Settings.h"

// The program-wide state that is not the game's: made at start-up, passed on by reference.
struct Globals {
  QString ProgramDirectory;  // the executable's, ends in "/"
  KeptFile IniFile;
  KeptFile ScoreFile;
  Settings settings;
};

// Saves what could not be saved before: for the end of the program, when nobody looks at a window
// any more. scores: how long they wait for another copy of the program that has the folder to
// itself.
void FinishSaving(Globals& globals, Wait scores);

// The program's version in numbers; what is missing in the application's version text counts as 0.
struct Version {
  int major;
  int minor;
  int revision;
};

Version ProgramVersion();

// Major and minor number as exported and printed lists show them: "1.0".
QString ShortVersion();
