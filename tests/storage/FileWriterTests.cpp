#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "storage/FileWriter.h"
#include "tests/storage/TestFiles.h"

class WritingAFile : public FolderTest {
 protected:
  void SetMode(const QString& pathName, mode_t mode) const {
    ASSERT_EQ(chmod(QFile::encodeName(pathName).constData(), mode), 0);
  }
  mode_t ModeOf(const QString& pathName) const {
    struct stat status {};
    EXPECT_EQ(stat(QFile::encodeName(pathName).constData(), &status), 0);
    return status.st_mode & 0777U;
  }
};

TEST_F(WritingAFile, MakesIt) {
  const QByteArray bytes("a\0\r\n\xFF", 5);
  EXPECT_EQ(WriteFile(PathOf("x"), bytes), std::nullopt);
  EXPECT_EQ(ContentOf(PathOf("x")), bytes);
}

TEST_F(WritingAFile, ReplacesALongerOne) {
  const QString path = Put("x", QByteArray(100000, 'o'));
  EXPECT_EQ(WriteFile(path, "new"), std::nullopt);
  EXPECT_EQ(ContentOf(path), "new");
}

TEST_F(WritingAFile, MayLeaveItEmpty) {
  const QString path = Put("x", "old");
  EXPECT_EQ(WriteFile(path, ""), std::nullopt);
  EXPECT_EQ(ContentOf(path), "");
}

TEST_F(WritingAFile, LeavesNothingElseBehind) {
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(Names(), QStringList{"x"});
}

TEST_F(WritingAFile, GivesANewOneThePermissionsOfAnyNewFile) {
  const mode_t mask = umask(022);
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  umask(mask);
  EXPECT_EQ(ModeOf(PathOf("x")), 0644U);
}

TEST_F(WritingAFile, FailsInAMissingFolder) {
  EXPECT_EQ(WriteFile(PathOf("no folder/x"), "new"), ProgramError::PathNotFound);
  EXPECT_EQ(Names(), QStringList());
}

TEST_F(WritingAFile, FailsWhereAFolderHasItsName) {
  ASSERT_TRUE(QDir(Folder()).mkdir("x"));
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), ProgramError::PathFileAccess);
  EXPECT_TRUE(QFileInfo(PathOf("x")).isDir());
}

TEST_F(WritingAFile, LeavesAPipeAlone) {
  ASSERT_EQ(mkfifo(QFile::encodeName(PathOf("pipe")).constData(), 0600), 0);
  EXPECT_EQ(WriteFile(PathOf("pipe"), "new"), ProgramError::PathFileAccess);
  EXPECT_FALSE(QFileInfo(PathOf("pipe")).isFile());
}

TEST_F(WritingAFile, FailsForNamesThatAreNone) {
  EXPECT_EQ(WriteFile("", "new"), ProgramError::BadFileName);
  EXPECT_EQ(WriteFile(QString("a") + QChar(0) + "b", "new"), ProgramError::BadFileName);
  EXPECT_EQ(WriteFile(PathOf(QString(300, 'x')), "new"), ProgramError::BadFileName);
}

TEST_F(WritingAFile, FailsInAReadOnlyFolder) {
  SetMode(Folder(), 0555);
  const Apart outcome = RunApart(BecomeOrdinaryUser, [&] {
    EXPECT_EQ(WriteFile(PathOf("another"), "new"), ProgramError::PermissionDenied);
  });
  SetMode(Folder(), 0755);
  EXPECT_EQ(outcome, Apart::Passed);
}

TEST_F(WritingAFile, WritesIntoTheFileOfAReadOnlyFolder) {
  const QString path = Put("x", "old and long");
  SetMode(path, 0666);
  SetMode(Folder(), 0555);
  const Apart outcome = RunApart(BecomeOrdinaryUser, [&] {
    EXPECT_EQ(WriteFile(path, "new"), std::nullopt);
    EXPECT_EQ(ContentOf(path), "new");
  });
  SetMode(Folder(), 0755);
  EXPECT_EQ(outcome, Apart::Passed);
}

TEST_F(WritingAFile, WorksInAFolderThatMayNotBeListed) {
  SetMode(Folder(), 0333);
  const Apart outcome = RunApart(BecomeOrdinaryUser, [&] {
    EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
    EXPECT_EQ(WriteFile(PathOf("x"), "newer"), std::nullopt);
    EXPECT_EQ(ContentOf(PathOf("x")), "newer");
  });
  SetMode(Folder(), 0755);
  EXPECT_EQ(outcome, Apart::Passed);
}

TEST_F(WritingAFile, IsAFullDiskWhereTheProcessMayNotWriteSoMuch) {
  const QString path = Put("x", "old");
  const auto allowLittle = [] {
    const rlimit little{1000, 1000};
    std::signal(SIGXFSZ, SIG_IGN);
    return setrlimit(RLIMIT_FSIZE, &little) == 0;
  };
  const Apart outcome = RunApart(allowLittle, [&] {
    EXPECT_EQ(WriteFile(path, QByteArray(5000, 'n')), ProgramError::DiskFull);
    EXPECT_EQ(ContentOf(path), "old");
    EXPECT_EQ(WriteFile(path, "new"), std::nullopt);
  });
  EXPECT_EQ(outcome, Apart::Passed);
}

TEST_F(WritingAFile, ClosesWhatItOpens) {
  const auto openFiles = [] { return QDir("/proc/self/fd").count(); };
  const QString linked = Put("linked", "old");
  ASSERT_EQ(
      link(QFile::encodeName(linked).constData(), QFile::encodeName(PathOf("twin")).constData()),
      0);
  const auto before = openFiles();
  for (const QString name : {"x", "linked", "no folder/x", "."}) {
    std::ignore = WriteFile(PathOf(name), "new");
    EXPECT_EQ(openFiles(), before) << name.toStdString();
  }
}

TEST_F(WritingAFile, FailsForAReadOnlyFileAndKeepsIt) {
  const QString path = Put("x", "old");
  SetMode(path, 0444);
  SetMode(Folder(), 0777);
  const Apart outcome = RunApart(BecomeOrdinaryUser, [&] {
    EXPECT_EQ(WriteFile(path, "new"), ProgramError::PermissionDenied);
    EXPECT_EQ(ContentOf(path), "old");
  });
  EXPECT_EQ(outcome, Apart::Passed);
}
