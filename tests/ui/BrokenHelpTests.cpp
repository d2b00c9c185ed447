// What the help window says when its file is not one.

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "storage/PathName.h"
#include "tests/ui/Desk.h"
#include "ui/help/frmHelp.h"

namespace {

class BrokenHelp : public testing::Test {
 protected:
  void Write(const QByteArray& contents) {
    QFile file(directory.filePath("GallopadeNova.hlp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
  }
  void ExpectMessage() {
    frmHelp help(directory.path() + "/");
    help.ShowContents();
    help.ShowTopic("How to Play");
    EXPECT_TRUE(help.isVisible());
    EXPECT_TRUE(Child<QLabel>(help, "helpError")
                    .text()
                    .startsWith("The help file GallopadeNova.hlp could not be opened."));
  }

  QTemporaryDir directory;
};

}  // namespace

TEST_F(BrokenHelp, SaysSoWhenTheFileIsMissing) {
  ExpectMessage();
}

TEST_F(BrokenHelp, SaysSoWhenTheFileIsEmpty) {
  Write(QByteArray());
  ExpectMessage();
}

TEST_F(BrokenHelp, SaysSoWhenTheFileIsSomethingElse) {
  Write(QByteArray("This is no help at all.\n").repeated(1000));
  ExpectMessage();
}

TEST_F(BrokenHelp, SaysSoWhenTheFileIsCutOff) {
  QFile whole(QString(HELP_FILE_DIRECTORY) + "GallopadeNova.hlp");
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  Write(whole.read(whole.size() / 2));
  ExpectMessage();
}

TEST_F(BrokenHelp, SaysSoWhenAPipeHasItsName) {
  const QByteArray path = QFile::encodeName(directory.filePath("GallopadeNova.hlp"));
  ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
  ExpectMessage();
}

TEST_F(BrokenHelp, SaysSoWhenADeviceHasItsName) {
  ASSERT_TRUE(QFile::link("/dev/zero", directory.filePath("GallopadeNova.hlp")));
  ExpectMessage();
}

TEST_F(BrokenHelp, IsWholeInAFolderWhoseNameIsNoText) {
  const QByteArray folder = QFile::encodeName(directory.path()) + "/caf\xE9/";
  ASSERT_EQ(mkdir(folder.constData(), 0700), 0);
  const QByteArray whole = QFile::encodeName(QString(HELP_FILE_DIRECTORY) + "GallopadeNova.hlp");
  ASSERT_EQ(symlink(whole.constData(), (folder + "GallopadeNova.hlp").constData()), 0);
  frmHelp help(PathFromBytes(folder));
  EXPECT_EQ(help.findChild<QLabel*>("helpError"), nullptr);
}

TEST_F(BrokenHelp, SaysSoWhenAFolderHasItsName) {
  ASSERT_TRUE(QDir(directory.path()).mkdir("GallopadeNova.hlp"));
  ExpectMessage();
}
