#include <QApplication>
#include <QDir>
#include <QIcon>

#include "app/Globals.h"
#include "ui/windows/game/frmGame.h"

namespace {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 24, 32, 48, 64, 128}) {
    icon.addFile(QString(":/icons/GallopadeNova-%1.png").arg(side), {side, side});
  }
  return icon;
}

// A name that the caller gave relative to the directory that the program was started in. The
// arguments are joined as the player typed them, so a name with blanks needs no quotes.
QString CommandLine(const QStringList& arguments) {
  return arguments.mid(1).join(' ');
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  QApplication application(argumentCount, arguments);
  QApplication::setApplicationName("GallopadeNova");
  QApplication::setApplicationVersion(PROGRAM_VERSION);
  QApplication::setDesktopFileName("GallopadeNova");
  QApplication::setWindowIcon(ProgramIcon());
  // The texts are English on every desktop, and A8 is at the top left of every board.
  QApplication::setLayoutDirection(Qt::LeftToRight);

  Globals globals;
  globals.ProgramDirectory = QCoreApplication::applicationDirPath() + "/";
  frmGame window(globals);
  window.Form_Load(CommandLine(QApplication::arguments()));
  const int result = QApplication::exec();
  FinishSaving(globals);
  return result;
}
