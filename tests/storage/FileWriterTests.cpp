#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "storage/FileWriter.h"
#include "storage/SavingFile.h"
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

TEST_F(WritingAFile, ClearsAwayWhatAKilledSaverLeft) {
  Put(".gallopade-saving-1", "half");
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(Names(), QStringList{"x"});
}

TEST_F(WritingAFile, LeavesWhatAnotherCopyIsSaving) {
  FolderLock other(Folder());
  ASSERT_TRUE(other.Take());
  Put(".gallopade-saving-1", "half");
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(ContentOf(PathOf("x")), "new");
  EXPECT_EQ(ContentOf(PathOf(".gallopade-saving-1")), "half");
}

TEST_F(WritingAFile, LeavesWhatACopyIsSavingThatDidNotWaitForTheFolder) {
  SavingFile other(Folder());
  ASSERT_TRUE(other.Write("half"));
  RemoveLeftSavingFiles(Folder());
  EXPECT_TRUE(other.TakePlaceOf(PathOf("x")));
  EXPECT_EQ(ContentOf(PathOf("x")), "half");
}

TEST_F(WritingAFile, LeavesNothingWhereItFindsNoPlace) {
  ASSERT_TRUE(QDir(Folder()).mkdir("x"));
  {
    SavingFile file(Folder());
    ASSERT_TRUE(file.Write("new"));
    EXPECT_FALSE(file.TakePlaceOf(PathOf("x")));
  }
  EXPECT_EQ(Names(), QStringList{"x"});
}

TEST_F(WritingAFile, BeginsNowhereWithoutAFolder) {
  EXPECT_FALSE(SavingFile(PathOf("no folder")).IsOpen());
}

TEST_F(WritingAFile, LeavesThePlayersOwnFilesAlone) {
  Put("x.backup", "mine");
  Put(".gallopade-saving-notes", "mine too");
  Put(".gallopade-saving-1.txt", "and mine");
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(Names(),
            QStringList({".gallopade-saving-1.txt", ".gallopade-saving-notes", "x", "x.backup"}));
}

TEST_F(WritingAFile, KeepsItsPermissions) {
  const QString path = Put("x", "old");
  SetMode(path, 0640);
  EXPECT_EQ(WriteFile(path, "new"), std::nullopt);
  EXPECT_EQ(ModeOf(path), 0640U);
}

TEST_F(WritingAFile, GivesANewOneThePermissionsOfAnyNewFile) {
  const mode_t mask = umask(022);
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  umask(mask);
  EXPECT_EQ(ModeOf(PathOf("x")), 0644U);
}

TEST_F(WritingAFile, KeepsASymbolicLinkAndChangesItsTarget) {
  const QString target = Put("target", "old");
  ASSERT_TRUE(QFile::link(target, PathOf("link")));
  EXPECT_EQ(WriteFile(PathOf("link"), "new"), std::nullopt);
  EXPECT_EQ(QFileInfo(PathOf("link")).symLinkTarget(), target);
  EXPECT_EQ(ContentOf(target), "new");
}

TEST_F(WritingAFile, MakesTheMissingTargetOfASymbolicLink) {
  ASSERT_TRUE(QFile::link(PathOf("target"), PathOf("link")));
  EXPECT_EQ(WriteFile(PathOf("link"), "new"), std::nullopt);
  EXPECT_TRUE(QFileInfo(PathOf("link")).isSymLink());
  EXPECT_EQ(ContentOf(PathOf("target")), "new");
}

TEST_F(WritingAFile, KeepsARelativeSymbolicLinkInAnotherFolder) {
  ASSERT_TRUE(QDir(Folder()).mkdir("far"));
  Put("far/target", "old");
  ASSERT_EQ(symlink("far/target", QFile::encodeName(PathOf("link")).constData()), 0);
  EXPECT_EQ(WriteFile(PathOf("link"), "new"), std::nullopt);
  EXPECT_TRUE(QFileInfo(PathOf("link")).isSymLink());
  EXPECT_EQ(ContentOf(PathOf("far/target")), "new");
}

TEST_F(WritingAFile, FailsForSymbolicLinksThatLeadNowhere) {
  ASSERT_TRUE(QFile::link(PathOf("b"), PathOf("a")));
  ASSERT_TRUE(QFile::link(PathOf("a"), PathOf("b")));
  EXPECT_EQ(WriteFile(PathOf("a"), "new"), ProgramError::PathFileAccess);
  EXPECT_TRUE(QFileInfo(PathOf("a")).isSymLink());
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

TEST_F(WritingAFile, FailsInAReadOnlyFolderAndKeepsTheOldOne) {
  const QString path = Put("x", "old");
  SetMode(path, 0666);
  SetMode(Folder(), 0555);
  const Apart outcome = RunApart(BecomeOrdinaryUser, [&] {
    EXPECT_EQ(WriteFile(path, "new"), ProgramError::PermissionDenied);
    EXPECT_EQ(WriteFile(PathOf("another"), "new"), ProgramError::PermissionDenied);
    EXPECT_EQ(ContentOf(path), "old");
  });
  SetMode(Folder(), 0755);
  EXPECT_EQ(outcome, Apart::Passed);
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
