#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "storage/FileWriter.h"
#include "storage/SavingFile.h"
#include "tests/storage/TestFiles.h"

namespace {

const QString Left = ".gallopade-saving-0123456789abcdef";

}  // namespace

class ASavingFile : public FolderTest {
 protected:
  QByteArray Bytes(const QString& name) const { return QFile::encodeName(PathOf(name)); }
  OpenFolder Opened() const { return OpenFolder(QFile::encodeName(Folder())); }
};

TEST_F(ASavingFile, IsClearedAwayWhenItsProcessWasKilled) {
  Put(Left, "half");
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(Names(), QStringList{"x"});
}

TEST_F(ASavingFile, StaysWhileItsProcessLives) {
  const OpenFolder folder = Opened();
  SavingFile other(folder, 0600);
  ASSERT_TRUE(other.Write("half"));
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(ContentOf(PathOf("x")), "new");
  EXPECT_TRUE(other.TakeNameOf("x"));
  EXPECT_EQ(ContentOf(PathOf("x")), "half");
}

TEST_F(ASavingFile, HasANameThatNobodyCanForesee) {
  const OpenFolder folder = Opened();
  std::set<QString> names;
  for (int file = 0; file < 20; ++file) {
    const SavingFile one(folder, 0600);
    names.insert(Names().value(0));
  }
  EXPECT_EQ(names.size(), 20U);
}

TEST_F(ASavingFile, IsGoneWhenItFindsNoPlace) {
  ASSERT_TRUE(QDir(Folder()).mkdir("x"));
  const OpenFolder folder = Opened();
  {
    SavingFile file(folder, 0600);
    ASSERT_TRUE(file.Write("new"));
    EXPECT_FALSE(file.TakeNameOf("x"));
  }
  EXPECT_EQ(Names(), QStringList{"x"});
}

TEST_F(ASavingFile, BeginsNowhereWithoutAFolder) {
  const OpenFolder none(Bytes("no folder"));
  EXPECT_FALSE(SavingFile(none, 0600).IsOpen());
}

TEST_F(ASavingFile, IsToldFromThePlayersOwnFiles) {
  const QStringList own = {
      ".gallopade-saving-0123456789abcde",  ".gallopade-saving-0123456789abcdef0",
      ".gallopade-saving-0123456789ABCDEF", ".gallopade-saving-notes",
      ".gallopade-saving-0123456789abcdeg", "gallopade-saving-0123456789abcdef"};
  for (const QString& name : own) Put(name, "mine");
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  for (const QString& name : own) EXPECT_EQ(ContentOf(PathOf(name)), "mine");
}

TEST_F(ASavingFile, IsNotTakenForWhatALinkOfItsNameLeadsTo) {
  Put("mine", "mine");
  ASSERT_EQ(symlink("mine", Bytes(Left).constData()), 0);
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(Names(), QStringList({Left, "mine", "x"}));
}

TEST_F(ASavingFile, IsNotTakenForAPipeOfItsName) {
  ASSERT_EQ(mkfifo(Bytes(Left).constData(), 0600), 0);
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(Names(), QStringList({Left, "x"}));
}

TEST_F(ASavingFile, OfAStrangerStays) {
  Put(Left, "half");
  if (!GiveAway(PathOf(Left), Stranger, Stranger))
    GTEST_SKIP() << "files cannot be given away here";
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(ContentOf(PathOf(Left)), "half");
}

// Who may give files away leaves one that is given away already when it is killed at the last
// moment.
TEST_F(ASavingFile, OfTheOwnerOfTheReplacedFileIsClearedAway) {
  Put(Left, "half");
  Put("x", "old");
  if (!GiveAway(PathOf(Left), Stranger, Stranger) || !GiveAway(PathOf("x"), Stranger, Stranger)) {
    GTEST_SKIP() << "files cannot be given away here";
  }
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(Names(), QStringList{"x"});
}
