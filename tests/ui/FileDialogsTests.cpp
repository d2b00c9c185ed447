#include <QFileDialog>
#include <QMimeDatabase>

#include "tests/ui/Desk.h"
#include "ui/application/FileDialogs.h"

namespace {

class FileDialogsTests : public Desk {
 protected:
  QFileInfo PdfNamed(const QString& name) {
    QFile file(ProgramFile(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("%PDF-1.4\n");
    return QFileInfo(file);
  }

  void ExpectNamesAloneAfter(const char* menuEntry) {
    WhenNextModalOpens([](QWidget& modal) {
      auto& dialog = dynamic_cast<QFileDialog&>(modal);
      EXPECT_NE(dynamic_cast<FileIcons*>(dialog.iconProvider()), nullptr);
      dialog.close();
    });
    Choose(menuEntry);
    EXPECT_TRUE(AllVisitsMade());
  }
};

}  // namespace

TEST_F(FileDialogsTests, TellAFilesKindByItsNameWithoutLookingIntoIt) {
  const QMimeDatabase kinds;
  EXPECT_EQ(FileIcons().type(PdfNamed("notes.txt")), kinds.mimeTypeForName("text/plain").comment());
  EXPECT_EQ(FileIcons().type(PdfNamed("notes")),
            kinds.mimeTypeForName("application/octet-stream").comment());
}

TEST_F(FileDialogsTests, TellFoldersFromFiles) {
  EXPECT_EQ(FileIcons().type(QFileInfo(ProgramFile("."))), "Folder");
}

TEST_F(FileDialogsTests, LookIntoNoFileOfTheFolderWhenAGameIsOpenedOrSaved) {
  Open();
  ClickSquare(1, 2);
  ExpectNamesAloneAfter("mnuFileSave");
  Answer("Open Game?", "Your current game is not finished. Do you want to open a game?",
         QMessageBox::Yes);
  ExpectNamesAloneAfter("mnuFileOpen");
}
