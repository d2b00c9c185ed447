#include <sys/stat.h>

#include <QFile>

#include "storage/FileReader.h"
#include "tests/storage/TestFiles.h"

namespace {

constexpr qint64 Plenty = 1000;

}  // namespace

class ReadingAFile : public FolderTest {};

TEST_F(ReadingAFile, GivesItsBytes) {
  const QByteArray bytes("a\0\r\n\xFF", 5);
  const FileContent content = ReadFile(Put("x", bytes), Plenty);
  EXPECT_EQ(content.bytes, bytes);
  EXPECT_EQ(content.error, std::nullopt);
}

TEST_F(ReadingAFile, GivesEveryByteOfALongOne) {
  const QByteArray bytes = QByteArray(100000, 'a') + QByteArray(100000, 'b');
  EXPECT_EQ(ReadFile(Put("x", bytes), 1000000).bytes, bytes);
}

TEST_F(ReadingAFile, StopsAtTheGivenLength) {
  EXPECT_EQ(ReadFile(Put("x", "abcdef"), 3).bytes, "abc");
  EXPECT_EQ(ReadFile(Put("y", QByteArray(100000, 'a')), 70000).bytes.size(), 70000);
}

TEST_F(ReadingAFile, FollowsASymbolicLink) {
  QFile::link(Put("x", "abc"), PathOf("link"));
  EXPECT_EQ(ReadFile(PathOf("link"), Plenty).bytes, "abc");
}

TEST_F(ReadingAFile, FailsWhenItIsNotThere) {
  EXPECT_EQ(ReadFile(PathOf("x"), Plenty).error, ProgramError::FileNotFound);
  EXPECT_EQ(ReadFile(PathOf("no folder/x"), Plenty).error, ProgramError::PathNotFound);
  EXPECT_EQ(ReadFile(PathOf("no folder/"), Plenty).error, ProgramError::PathNotFound);
  EXPECT_EQ(ReadFile("no file", Plenty).error, ProgramError::FileNotFound);
}

TEST_F(ReadingAFile, FailsForAFolder) {
  EXPECT_EQ(ReadFile(Folder(), Plenty).error, ProgramError::PathFileAccess);
}

TEST_F(ReadingAFile, DoesNotWaitForAPipe) {
  ASSERT_EQ(mkfifo(QFile::encodeName(PathOf("pipe")).constData(), 0600), 0);
  EXPECT_EQ(ReadFile(PathOf("pipe"), Plenty).error, ProgramError::PathFileAccess);
}

TEST_F(ReadingAFile, DoesNotReadADevice) {
  EXPECT_EQ(ReadFile("/dev/zero", Plenty).error, ProgramError::PathFileAccess);
}

TEST_F(ReadingAFile, FailsForNamesThatAreNone) {
  EXPECT_EQ(ReadFile("", Plenty).error, ProgramError::BadFileName);
  EXPECT_EQ(ReadFile(QString("a") + QChar(0) + "b", Plenty).error, ProgramError::BadFileName);
}

TEST_F(ReadingAFile, FailsWithoutThePermission) {
  const QString path = Put("x", "secret");
  ASSERT_EQ(chmod(QFile::encodeName(Folder()).constData(), 0755), 0);
  ASSERT_TRUE(QFile::setPermissions(path, QFileDevice::Permissions()));
  const Apart outcome = RunApart(BecomeOrdinaryUser, [&] {
    EXPECT_EQ(ReadFile(path, Plenty).error, ProgramError::PermissionDenied);
  });
  EXPECT_EQ(outcome, Apart::Passed);
}

TEST_F(ReadingAFile, FailsWhenItsBytesCannotBeHad) {
  EXPECT_EQ(ReadFile("/proc/self/mem", Plenty).error, ProgramError::DeviceIo);
}
