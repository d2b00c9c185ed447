#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "storage/FileLock.h"
#include "storage/OpenFolder.h"
#include "storage/clsIniFile.h"
#include "tests/storage/TestFiles.h"

class TheIniFile : public FolderTest {
 protected:
  // What a failing read says; "" when it succeeds.
  QString ErrorOfReading(const QString& pathName, const QString& key = "Key") {
    QString error;
    return iniFile_.ReadIniFileValue(pathName, "S", key, value_, error) ? QString() : error;
  }
  // What a failing write says; "" when it succeeds.
  QString ErrorOfWriting(const QString& pathName, const QString& value) {
    QString error;
    return iniFile_.WriteIniFileValue(pathName, "S", "Key", value, error) ? QString() : error;
  }

  clsIniFile iniFile_;
  QString value_;
};

TEST_F(TheIniFile, GivesAValueThatIsThere) {
  EXPECT_EQ(ErrorOfReading(Put("x.ini", "[s]\nkey=12\n")), "");
  EXPECT_EQ(value_, "12");
}

TEST_F(TheIniFile, LeavesTheDescriptionUntouchedOnSuccess) {
  QString error = "before";
  EXPECT_TRUE(iniFile_.WriteIniFileValue(PathOf("x.ini"), "S", "Key", "1", error));
  EXPECT_TRUE(iniFile_.ReadIniFileValue(PathOf("x.ini"), "S", "Key", value_, error));
  EXPECT_EQ(error, "before");
}

TEST_F(TheIniFile, SaysThatItIsMissing) {
  const QString path = PathOf("x.ini");
  EXPECT_EQ(ErrorOfReading(path), "Ini File '" + path + "' Is Missing");
  EXPECT_EQ(ErrorOfReading(Folder()), "Ini File '" + Folder() + "' Is Missing");
}

TEST_F(TheIniFile, SaysThatAValueIsMissing) {
  const QString path = Put("x.ini", "[S]\nEmpty=\n");
  EXPECT_EQ(ErrorOfReading(path), "Ini File '" + path + "' Section 'S' Key 'Key' Value Is Missing");
  EXPECT_EQ(ErrorOfReading(path, "Empty"),
            "Ini File '" + path + "' Section 'S' Key 'Empty' Value Is Missing");
}

TEST_F(TheIniFile, GivesNothingForAMissingValue) {
  value_ = "before";
  ErrorOfReading(Put("x.ini", "[S]\nKey=\n"));
  EXPECT_EQ(value_, "");
}

TEST_F(TheIniFile, IsMadeByWritingToIt) {
  EXPECT_EQ(ErrorOfWriting(PathOf("x.ini"), "1"), "");
  EXPECT_EQ(ContentOf(PathOf("x.ini")), "[S]\r\nKey=1\r\n");
}

TEST_F(TheIniFile, LeavesNothingBesideIt) {
  EXPECT_EQ(ErrorOfWriting(PathOf("x.ini"), "1"), "");
  EXPECT_EQ(Names(), QStringList{"x.ini"});
}

TEST_F(TheIniFile, SaysThatItCannotBeWritten) {
  const QString path = PathOf("no folder/x.ini");
  EXPECT_EQ(ErrorOfWriting(path, "12"),
            "Cannot Write Ini File '" + path + "' Section 'S' Key 'Key' Value '12'");
  EXPECT_NE(ErrorOfWriting(Folder(), "12"), "");
  EXPECT_NE(ErrorOfWriting("", "12"), "");
}

TEST_F(TheIniFile, ReadsALongValueCutTo255Characters) {
  const QString path = PathOf("x.ini");
  EXPECT_EQ(ErrorOfWriting(path, QString(1000, 'x')), "");
  EXPECT_EQ(ErrorOfReading(path), "");
  EXPECT_EQ(value_, QString(255, 'x'));
}

TEST_F(TheIniFile, IsReadAfreshOnEachCall) {
  const QString path = Put("x.ini", "[S]\nKey=1\n");
  ErrorOfReading(path);
  Put("x.ini", "[S]\nKey=2\n");
  ErrorOfReading(path);
  EXPECT_EQ(value_, "2");
}

TEST_F(TheIniFile, TakesSeveralValuesTogetherOrNone) {
  QString error;
  const std::vector<IniEntry> entries = {{"S", "A", "1"}, {"T", "B", "2"}};
  EXPECT_TRUE(iniFile_.WriteIniFileValues(PathOf("x.ini"), entries, error));
  EXPECT_EQ(ContentOf(PathOf("x.ini")), "[S]\r\nA=1\r\n[T]\r\nB=2\r\n");
  EXPECT_FALSE(iniFile_.WriteIniFileValues(PathOf("no folder/x.ini"), entries, error));
}

TEST_F(TheIniFile, IsNotMadeForNoValues) {
  QString error;
  EXPECT_TRUE(iniFile_.WriteIniFileValues(PathOf("x.ini"), {}, error));
  EXPECT_EQ(Names(), QStringList());
}

TEST_F(TheIniFile, MustBeAFileEvenForNoValues) {
  QString error;
  EXPECT_FALSE(iniFile_.WriteIniFileValues(Folder(), {}, error));
}

TEST_F(TheIniFile, IsRefusedWhenItIsHugeAndLeftAsItIs) {
  QFile huge(Put("x.ini", "[S]\nKey=1\n"));
  ASSERT_TRUE(huge.resize(100LL * 1024 * 1024));
  EXPECT_EQ(ErrorOfReading(huge.fileName()),
            "Ini File '" + huge.fileName() + "' Section 'S' Key 'Key' Value Is Missing");
  EXPECT_NE(ErrorOfWriting(huge.fileName(), "2"), "");
  EXPECT_EQ(huge.size(), 100LL * 1024 * 1024);
}

TEST_F(TheIniFile, DoesNotGrowBeyondWhatCanBeRead) {
  const QString path = Put("x.ini", "[S]\nKey=1\n");
  EXPECT_NE(ErrorOfWriting(path, QString(2LL * 1024 * 1024, 'x')), "");
  EXPECT_EQ(ContentOf(path), "[S]\nKey=1\n");
}

TEST_F(TheIniFile, MayHaveAMegabyteAndNotAByteMore) {
  constexpr qsizetype Megabyte = 1024 * 1024;
  const QByteArray entry = "[S]\nKey=1\n;";
  const QString path = Put("x.ini", entry + QByteArray(Megabyte - entry.size(), 'x'));
  EXPECT_EQ(ErrorOfReading(path), "");
  EXPECT_EQ(ErrorOfWriting(path, "2"), "");
  EXPECT_NE(ErrorOfWriting(path, "22"), "");
  EXPECT_EQ(ErrorOfReading(path), "");
  EXPECT_EQ(value_, "2");
  Put("x.ini", entry + QByteArray(Megabyte + 1 - entry.size(), 'x'));
  EXPECT_NE(ErrorOfReading(path), "");
  EXPECT_NE(ErrorOfWriting(path, "3"), "");
}

TEST_F(TheIniFile, IsNotReplacedWhenItCannotBeRead) {
  const QString path = Put("x.ini", "[S]\nKey=1\n");
  ASSERT_TRUE(QFile::setPermissions(Folder(), QFileDevice::Permissions(0x7777)));
  ASSERT_TRUE(QFile::setPermissions(path, QFileDevice::WriteOther));
  const Apart outcome =
      RunApart(BecomeOrdinaryUser, [&] { EXPECT_NE(ErrorOfWriting(path, "2"), ""); });
  EXPECT_EQ(outcome, Apart::Passed);
  ASSERT_TRUE(QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner));
  EXPECT_EQ(ContentOf(path), "[S]\nKey=1\n");
}

TEST_F(TheIniFile, IsNotWrittenWhileAnotherCopyHoldsItsFolder) {
  const QString path = Put("x.ini", "[S]\nKey=1\n");
  const OpenFolder other(QFile::encodeName(Folder()));
  ASSERT_EQ(TakeLock(other.Number(), Wait::Not), FileLock::Taken);
  EXPECT_NE(ErrorOfWriting(path, "2"), "");
  EXPECT_EQ(ContentOf(path), "[S]\nKey=1\n");
}

TEST_F(TheIniFile, LosesNoneOfTheValuesThatRunningCopiesWrite) {
  constexpr int Copies = 4;
  constexpr int ValuesOfEach = 10;
  const QString path = PathOf("x.ini");
  for (int copy = 0; copy < Copies; ++copy) {
    if (fork() != 0) continue;
    QString error;
    bool isWritten = true;
    for (int value = 0; value < ValuesOfEach; ++value) {
      const QString key = QString("%1 %2").arg(copy).arg(value);
      isWritten &= iniFile_.WriteIniFileValue(path, "S", key, "x", error);
    }
    _exit(isWritten ? 0 : 1);
  }
  int status = 0;
  while (wait(&status) > 0) EXPECT_EQ(status, 0);
  EXPECT_EQ(ContentOf(path).count("=x\r\n"), Copies * ValuesOfEach);
}
