#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "storage/FileReader.h"
#include "storage/FileWriter.h"
#include "storage/KeptFile.h"
#include "tests/storage/TestFiles.h"

class ALinkedFile : public FolderTest {
 protected:
  void MakeFolder(const QString& name) const { ASSERT_TRUE(QDir(Folder()).mkpath(name)); }
  // The text of the link is taken as it stands.
  void Link(const char* text, const QString& name) const {
    ASSERT_EQ(symlink(text, QFile::encodeName(PathOf(name)).constData()), 0);
  }
  bool IsLink(const QString& name) const { return QFileInfo(PathOf(name)).isSymLink(); }
};

TEST_F(ALinkedFile, IsWrittenAndItsLinkStays) {
  const QString target = Put("target", "old");
  ASSERT_TRUE(QFile::link(target, PathOf("link")));
  EXPECT_EQ(WriteFile(PathOf("link"), "new"), std::nullopt);
  EXPECT_EQ(QFileInfo(PathOf("link")).symLinkTarget(), target);
  EXPECT_EQ(ContentOf(target), "new");
}

TEST_F(ALinkedFile, IsMadeWhereItIsMissing) {
  Link("target", "link");
  EXPECT_EQ(WriteFile(PathOf("link"), "new"), std::nullopt);
  EXPECT_TRUE(IsLink("link"));
  EXPECT_EQ(ContentOf(PathOf("target")), "new");
}

TEST_F(ALinkedFile, MayLieInAnotherFolder) {
  MakeFolder("far");
  Put("far/target", "old");
  Link("far/target", "link");
  EXPECT_EQ(WriteFile(PathOf("link"), "new"), std::nullopt);
  EXPECT_TRUE(IsLink("link"));
  EXPECT_EQ(ContentOf(PathOf("far/target")), "new");
}

TEST_F(ALinkedFile, MayBeBehindSeveralLinks) {
  MakeFolder("far");
  Put("target", "old");
  Link("../second", "far/first");
  Link("target", "second");
  EXPECT_EQ(WriteFile(PathOf("far/first"), "new"), std::nullopt);
  EXPECT_TRUE(IsLink("second"));
  EXPECT_EQ(ContentOf(PathOf("target")), "new");
}

// The folder "o/a" is "r/sub", so its ".." is "r" and not "o".
TEST_F(ALinkedFile, IsTheOneThatTheSystemMeansBehindALinkedFolder) {
  MakeFolder("r/sub");
  MakeFolder("o");
  Put("r/x.knight", "old");
  Put("o/x.knight", "mine");
  Link("../x.knight", "r/sub/l.knight");
  Link("../r/sub", "o/a");
  EXPECT_EQ(WriteFile(PathOf("o/a/l.knight"), "new"), std::nullopt);
  EXPECT_EQ(ContentOf(PathOf("r/x.knight")), "new");
  EXPECT_EQ(ContentOf(PathOf("o/x.knight")), "mine");
  EXPECT_EQ(ReadFile(PathOf("o/a/l.knight"), 100).bytes, "new");
}

TEST_F(ALinkedFile, IsMissedWhereTheSystemMissesItBehindALinkedFolder) {
  MakeFolder("r/sub");
  MakeFolder("o");
  Link("../x.ini", "r/sub/l.ini");
  Link("../r/sub", "o/a");
  KeptFile(PathOf("o/a/l.ini")).Change({{"S", "Key", "1"}});
  EXPECT_EQ(ContentOf(PathOf("r/x.ini")), "[S]\r\nKey=1\r\n");
  EXPECT_FALSE(QFile::exists(PathOf("o/x.ini")));
}

TEST_F(ALinkedFile, IsNotWrittenWhereLinksLeadInACircle) {
  Link("b", "a");
  Link("a", "b");
  EXPECT_EQ(WriteFile(PathOf("a"), "new"), ProgramError::PathFileAccess);
  EXPECT_TRUE(IsLink("a"));
}

TEST_F(ALinkedFile, IsNotWrittenBehindMoreLinksThanTheSystemFollows) {
  Put("0", "old");
  for (int number = 1; number <= 41; ++number) {
    Link(QByteArray::number(number - 1).constData(), QString::number(number));
  }
  EXPECT_EQ(WriteFile(PathOf("41"), "new"), ProgramError::PathFileAccess);
  EXPECT_TRUE(IsLink("1"));
  EXPECT_EQ(ContentOf(PathOf("0")), "old");
  EXPECT_EQ(WriteFile(PathOf("40"), "new"), std::nullopt);
  EXPECT_EQ(ContentOf(PathOf("0")), "new");
}

TEST_F(ALinkedFile, KeepsItsOtherNames) {
  const QByteArray path = QFile::encodeName(Put("x", "old and long"));
  const QByteArray twin = QFile::encodeName(PathOf("twin"));
  ASSERT_EQ(link(path.constData(), twin.constData()), 0);
  EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
  EXPECT_EQ(ContentOf(PathOf("twin")), "new");
  EXPECT_EQ(Names(), QStringList({"twin", "x"}));
}

TEST_F(ALinkedFile, IsEmptiedAndItsLinkStaysWhenItIsCleared) {
  const QString target = Put("target", "[S]\nKey=1\n");
  Link("target", "x.ini");
  KeptFile file(PathOf("x.ini"));
  file.Clear();
  EXPECT_TRUE(file.IsSaved());
  EXPECT_TRUE(IsLink("x.ini"));
  EXPECT_EQ(ContentOf(target), "");
}

TEST_F(ALinkedFile, IsEmptiedUnderAllItsNamesWhenItIsCleared) {
  Put("x.ini", "[S]\nKey=1\n");
  ASSERT_EQ(link(QFile::encodeName(PathOf("x.ini")).constData(),
                 QFile::encodeName(PathOf("twin")).constData()),
            0);
  KeptFile(PathOf("x.ini")).Clear();
  EXPECT_EQ(ContentOf(PathOf("twin")), "");
}

TEST_F(ALinkedFile, MayBeClearedWhereItIsMissing) {
  Link("target", "x.ini");
  KeptFile file(PathOf("x.ini"));
  file.Clear();
  EXPECT_TRUE(file.IsSaved());
  EXPECT_EQ(Names(), QStringList({"x.ini"}));
}
