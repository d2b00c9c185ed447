#include <sys/stat.h>

#include <QDir>
#include <QFile>

#include "storage/FileLock.h"
#include "storage/KeptFile.h"
#include "storage/OpenFolder.h"
#include "tests/storage/TestFiles.h"

class AKeptFile : public FolderTest {
 protected:
  AKeptFile() : file_(PathOf("x.ini")) {
    file_.onWaiting = [this] { ++waits_; };
  }

  void Change(const QString& value) { file_.Change({{"S", "Key", value}}); }
  QString Value() const { return file_.Values().Value("S", "Key"); }
  // In its place is something that no file can be written over.
  void Obstruct() { ASSERT_TRUE(QDir(Folder()).mkpath("x.ini/inside")); }
  void Clear() { ASSERT_TRUE(QDir(PathOf("x.ini")).removeRecursively()); }

  KeptFile file_;
  int waits_ = 0;
};

TEST_F(AKeptFile, HasItsChangesAtOnce) {
  Change("1");
  EXPECT_EQ(ContentOf(PathOf("x.ini")), "[S]\r\nKey=1\r\n");
  EXPECT_TRUE(file_.IsSaved());
  EXPECT_EQ(waits_, 0);
}

TEST_F(AKeptFile, IsReadAfresh) {
  Change("1");
  Put("x.ini", "[S]\nKey=2\n");
  EXPECT_EQ(Value(), "2");
}

TEST_F(AKeptFile, GoesOnWithWhatCouldNotBeWritten) {
  Obstruct();
  Change("1");
  EXPECT_FALSE(file_.IsSaved());
  EXPECT_EQ(Value(), "1");
  EXPECT_EQ(waits_, 0);
}

TEST_F(AKeptFile, WritesWhatIsLeftWithTheNextChangeThatCanBeWritten) {
  Obstruct();
  Change("1");
  file_.Change({{"S", "Other", "3"}});
  Clear();
  Put("x.ini", "[T]\r\nKey=theirs\r\n");
  Change("2");
  EXPECT_TRUE(file_.IsSaved());
  EXPECT_EQ(ContentOf(PathOf("x.ini")), "[T]\r\nKey=theirs\r\n[S]\r\nKey=2\r\nOther=3\r\n");
}

TEST_F(AKeptFile, IsClearedAway) {
  Change("1");
  file_.Clear();
  EXPECT_TRUE(file_.IsSaved());
  EXPECT_EQ(Names(), QStringList());
  EXPECT_EQ(Value(), "");
}

TEST_F(AKeptFile, IsEmptiedWhereItsFolderLetsNothingGo) {
  Put("x.ini", "[S]\nKey=1\n");
  const auto setMode = [](const QString& name, mode_t mode) {
    ASSERT_EQ(chmod(QFile::encodeName(name).constData(), mode), 0);
  };
  setMode(PathOf("x.ini"), 0666);
  setMode(Folder(), 0555);
  const Apart outcome = RunApart(BecomeOrdinaryUser, [this] {
    file_.Clear();
    EXPECT_TRUE(file_.IsSaved());
  });
  setMode(Folder(), 0755);
  EXPECT_EQ(outcome, Apart::Passed);
  EXPECT_EQ(ContentOf(PathOf("x.ini")), "");
  EXPECT_EQ(Names(), QStringList{"x.ini"});
}

TEST_F(AKeptFile, MayBeClearedWhereItIsMissing) {
  file_.Clear();
  EXPECT_TRUE(file_.IsSaved());
  EXPECT_EQ(Names(), QStringList());
}

TEST_F(AKeptFile, ForgetsWhatWasToBeWrittenWhenItIsCleared) {
  Obstruct();
  Change("1");
  file_.Clear();
  EXPECT_EQ(Value(), "");
  Clear();
  file_.Save(Wait::Not);
  EXPECT_TRUE(file_.IsSaved());
  EXPECT_EQ(Value(), "");
}

TEST_F(AKeptFile, CountsAsClearedWhenItCouldNotBe) {
  const QString path = Put("x.ini", "[S]\nKey=1\n");
  const OpenFolder other(QFile::encodeName(Folder()));
  ASSERT_EQ(TakeLock(other.Number(), Wait::Not), FileLock::Taken);
  file_.Clear();
  EXPECT_EQ(Value(), "");
  EXPECT_EQ(ContentOf(path), "[S]\nKey=1\n");
}

TEST_F(AKeptFile, DoesNotWaitForAnotherCopy) {
  {
    const OpenFolder other(QFile::encodeName(Folder()));
    ASSERT_EQ(TakeLock(other.Number(), Wait::Not), FileLock::Taken);
    Change("1");
    EXPECT_EQ(waits_, 1);
    file_.Save(Wait::Not);
    EXPECT_EQ(waits_, 2);
    EXPECT_EQ(Value(), "1");
    EXPECT_EQ(Names(), QStringList());
  }
  Put("x.ini", "[T]\r\nKey=theirs\r\n");
  file_.Save(Wait::Not);
  EXPECT_EQ(ContentOf(PathOf("x.ini")), "[T]\r\nKey=theirs\r\n[S]\r\nKey=1\r\n");
  EXPECT_EQ(waits_, 2);
}

TEST_F(AKeptFile, HasALockThatCanBeWaitedFor) {
  const OpenFolder folder(QFile::encodeName(Folder()));
  EXPECT_EQ(TakeLock(folder.Number(), Wait::AsLongAsItTakes), FileLock::Taken);
}

TEST_F(AKeptFile, LosesNoScoreThatHadToWait) {
  const FinishedGame game{40, 100};
  {
    const OpenFolder other(QFile::encodeName(Folder()));
    ASSERT_EQ(TakeLock(other.Number(), Wait::Not), FileLock::Taken);
    SaveScore(file_, ScoreList::High, game, "Ann");
    EXPECT_EQ(RowsFrom(file_.Values(), ScoreList::High)[0].name, "Ann");
  }
  EXPECT_TRUE(Enter(PathOf("x.ini"), ScoreList::High, {50, 100}, "Bob"));
  file_.Save(Wait::AsLongAsItTakes);
  const ScoreRows rows = ScoresIn(PathOf("x.ini"), ScoreList::High);
  EXPECT_EQ(rows[0].name, "Bob");
  EXPECT_EQ(rows[1].name, "Ann");
  EXPECT_EQ(rows[2], ScoreRow());
}
