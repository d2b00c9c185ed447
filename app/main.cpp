#include <string>

#include <QApplication>
#include <QIcon>

#include "app/Globals.h"
#include "app/Process.h"
#include "ui/windows/game/frmGame.h"

namespace {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 24, 32, 48, 64, 128}) {
    icon.addFile(QString(":/icons/GallopadeNova-%1.png").arg(side), {side, side});
  }
  return icon;
}

// The arguments are joined as the player typed them, so a name with blanks needs no quotes. They
// are bytes: a name need not be text to be the name of a file.
std::string CommandLine(int argumentCount, char* arguments[]) {
  std::string line;
  for (int i = 1; i < argumentCount; ++i) line.append(i > 1 ? " " : "").append(arguments[i]);
  return line;
}

int Play(Globals& globals, const std::string& commandLine) {
  frmGame window(globals);
  window.Form_Load(commandLine);
  return QApplication::exec();
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  TakeSizeLimitAsError();
  // All arguments are the game's: Qt is shown none, or it would take out those that it knows.
  int programAlone = 1;
  QApplication application(programAlone, arguments);
  QApplication::setApplicationName("GallopadeNova");
  QApplication::setApplicationVersion(PROGRAM_VERSION);
  QApplication::setDesktopFileName("GallopadeNova");
  QApplication::setWindowIcon(ProgramIcon());
  // The texts are English on every desktop, and A8 is at the top left of every board.
  QApplication::setLayoutDirection(Qt::LeftToRight);

  Globals globals;
  globals.ProgramDirectory = FolderOfProgram();
  const int result = Play(globals, CommandLine(argumentCount, arguments));
  // The window is gone, and a signal that comes now ends the program at once.
  FinishSaving(globals, Wait::AsLongAsItTakes);
  return result;
}
