#include "ui/commands/MoveHistory.h"

#include <tuple>

#include "app/Globals.h"
#include "storage/FileWriter.h"
#include "storage/MoveListExport.h"

namespace {

constexpr const char* ExportFilter =
    "Rich Text Format (*.rtf)|*.rtf|Plain Text (*.txt)|*.txt|All Files (*.*)|*.*";

}  // namespace

void ExportMoves(const CommandContext& context, const QStringList& lines) {
  QString& directory = context.globals.settings.PreviousDirectory;
  const QString fileName = context.dialogs.SaveFile({directory, ExportFilter});
  if (fileName.isEmpty()) return;
  directory = DirectoryOf(fileName);
  std::ignore = WriteFile(fileName, ExportedMoveList(lines, fileName, ShortVersion()));
}

void ReportPrintingFailure(const CommandContext& context) {
  const QString text = "Your document was not printed due to the following error:\n" +
                       ErrorText(ProgramError::Printer);
  context.window.Tell("Sorry...", text.toStdString(), MessageIcon::Exclamation);
}
