#include "app/Globals.h"

#include <QCoreApplication>
#include <QVersionNumber>

void FinishSaving(Globals& globals, Wait scores) {
  globals.ScoreFile.Save(scores);
  globals.IniFile.Save(Wait::AMoment);
}

Version ProgramVersion() {
  const auto number = QVersionNumber::fromString(QCoreApplication::applicationVersion());
  return {number.majorVersion(), number.minorVersion(), number.microVersion()};
}

QString ShortVersion() {
  const Version version = ProgramVersion();
  return QString("%1.%2").arg(version.major).arg(version.minor);
}
