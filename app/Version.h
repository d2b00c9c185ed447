#pragma once

#include <QString>

// The program's version in numbers; what is missing in the application's version text counts as 0.
struct Version {
  int major;
  int minor;
  int revision;
};

Version ProgramVersion();

// Major and minor number as exported and printed lists show them: "1.0".
QString ShortVersion();
