#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeDatabase>
#include <QTest>
#include <QTreeView>

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

const QString NotFound = "\nFile not found.\nPlease verify the correct file name was given.";
const QString NoFolder = "\nPath does not exist.\nVerify that it is the right one.";
const QString Overwrite = " already exists.\nDo you want to replace it?";

// A dialog of a folder with a few strange names in it, and what is typed into it.
class TypedNames : public Desk {
 protected:
  TypedNames() { Open(); }

  void Make(const QString& name) {
    EXPECT_TRUE(QFile(ProgramFile(name)).open(QIODevice::WriteOnly));
  }

  FileQuestion Question() { return {globals.ProgramDirectory, "All Files (*.*)|*.*"}; }

  // Types one name after the other until the dialog closes; it is left after the last one.
  void Type(const QStringList& names) {
    WhenNextModalOpens([names](QWidget& modal) {
      auto& dialog = dynamic_cast<QFileDialog&>(modal);
      for (const QString& name : names) {
        dialog.activateWindow();  // a message had taken its place
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        auto& edit = Child<QLineEdit>(dialog, "fileNameEdit");
        edit.setFocus();
        edit.setText(name);
        QTest::keyClick(&edit, Qt::Key_Return);
      }
      if (dialog.isVisible()) dialog.reject();
    });
  }

  QString ToOpen() { return NameOf(ChooseFileToOpen(Window(), Question())); }
  QString ToSave() { return NameOf(ChooseFileToSave(Window(), Question())); }

 private:
  // Beside the program, or as it is.
  QString NameOf(QString chosen) const {
    EXPECT_TRUE(AllVisitsMade());
    return chosen.remove(globals.ProgramDirectory);
  }
};

}  // namespace

TEST_F(TypedNames, AreTakenToTheLetter) {
  for (const QString name : {"my \"best\" game", "\"whole\"", "one\"", "<b>x.knight", "a;b"}) {
    Type({name});
    EXPECT_EQ(ToSave(), name);
    Make(name);
    Type({name});
    EXPECT_EQ(ToOpen(), name);
  }
}

TEST_F(TypedNames, AreShownAsTheyStandBeforeAFileIsOverwritten) {
  Make("<b>x.knight");
  Type({"<b>x.knight", "other"});
  Answer("Save As", "<b>x.knight" + Overwrite, QMessageBox::No);
  EXPECT_EQ(ToSave(), "other");
  Type({"<b>x.knight"});
  Answer("Save As", "<b>x.knight" + Overwrite, QMessageBox::Yes);
  EXPECT_EQ(ToSave(), "<b>x.knight");
}

TEST_F(TypedNames, AreShownAsTheyStandWhenThereIsNoSuchFile) {
  Type({"<b>none", ""});
  Answer("Open", "<b>none" + NotFound, QMessageBox::Ok);
  EXPECT_EQ(ToOpen(), "");
}

TEST_F(TypedNames, AreRefusedWhereThereIsNoSuchFolder) {
  const QString name = globals.ProgramDirectory + "none/a";
  Type({"none/a"});
  Answer("Open", name + NoFolder, QMessageBox::Ok);
  EXPECT_EQ(ToOpen(), "");
  Type({"none/a", "a"});
  Answer("Save As", name + NoFolder, QMessageBox::Ok);
  EXPECT_EQ(ToSave(), "a");
}

TEST_F(TypedNames, AreReplacedByTheNextOnceTheyAreRefused) {
  WhenNextModalOpens([](QWidget& modal) {
    auto& edit = Child<QLineEdit>(modal, "fileNameEdit");
    edit.setText("none");
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(edit.selectedText(), "none");
    modal.close();
  });
  Answer("Open", "none" + NotFound, QMessageBox::Ok);
  EXPECT_EQ(ToOpen(), "");
}

TEST_F(TypedNames, LeadIntoFolders) {
  ASSERT_TRUE(QDir(globals.ProgramDirectory).mkpath("\"sub\"/folder"));
  Type({"\"sub\"", "folder", "a"});
  EXPECT_EQ(ToSave(), "\"sub\"/folder/a");
  Type({"\"sub\"", "folder", "..", "a"});
  EXPECT_EQ(ToSave(), "\"sub\"/a");
}

TEST_F(TypedNames, MayBeWholePaths) {
  Type({globals.ProgramDirectory + "a"});
  EXPECT_EQ(ToSave(), "a");
}

TEST_F(TypedNames, MayBeLongerThanALine) {
  const QString name(150, 'x');
  Make(name);
  Type({name});
  Answer("Save As",
         QString(60, 'x') + "\n" + QString(60, 'x') + "\n" + QString(30, 'x') + Overwrite,
         QMessageBox::Yes);
  EXPECT_EQ(ToSave(), name);
}

TEST_F(FileDialogsTests, HaveATitleOfTheirOwn) {
  Open();
  WhenNextModalOpens([](QWidget& modal) {
    EXPECT_EQ(modal.windowTitle(), "Open");
    modal.close();
  });
  Choose("mnuFileOpen");
  ClickSquare(1, 2);
  WhenNextModalOpens([](QWidget& modal) {
    EXPECT_EQ(modal.windowTitle(), "Save As");
    modal.close();
  });
  Choose("mnuFileSave");
}

TEST_F(FileDialogsTests, ShowSizeAndDateWhole) {
  Open();
  PdfNamed("a game.knight");
  WhenNextModalOpens([](QWidget& modal) {
    auto& files = Child<QTreeView>(modal, "treeView");
    EXPECT_LE(files.header()->length(), files.viewport()->width());
    for (const int column : {1, 3}) {
      const int width = files.header()->sectionSize(column);
      files.resizeColumnToContents(column);
      EXPECT_GE(width, files.header()->sectionSize(column)) << column;
    }
    modal.close();
  });
  Choose("mnuFileOpen");
}

TEST_F(FileDialogsTests, TellAFilesKindByItsNameWithoutLookingIntoIt) {
  const QMimeDatabase kinds;
  EXPECT_EQ(FileIcons().type(PdfNamed("notes.txt")), kinds.mimeTypeForName("text/plain").comment());
  EXPECT_EQ(FileIcons().type(PdfNamed("notes")), "File");
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
