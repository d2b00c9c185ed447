#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QFile>

#include "storage/FileWriter.h"
#include "tests/storage/TestFiles.h"

namespace {

constexpr unsigned Club = 23456;
constexpr const char* AccessList = "system.posix_acl_access";
constexpr const char* AccessListOfNewFiles = "system.posix_acl_default";

// An access list as the system keeps it: what the owner, the stranger, the group and all others may
// do, and the most that anyone but the owner may.
QByteArray AccessListWith(char owner, char stranger, char group, char most, char others) {
  const auto entry = [](char tag, char rights, quint32 who = 0xFFFFFFFFU) {
    return QByteArray{} + tag + '\0' + rights + '\0' +
           QByteArray(reinterpret_cast<const char*>(&who), sizeof who);
  };
  return QByteArray("\2\0\0\0", 4) + entry(0x01, owner) + entry(0x02, stranger, Stranger) +
         entry(0x04, group) + entry(0x10, most) + entry(0x20, others);
}

}  // namespace

class AReplacedFile : public FolderTest {
 protected:
  AReplacedFile() { Put("x", "old and long"); }

  QByteArray Path(const QString& name = "x") const { return QFile::encodeName(PathOf(name)); }
  struct stat Status() const {
    struct stat status {};
    EXPECT_EQ(stat(Path().constData(), &status), 0);
    return status;
  }
  mode_t Mode() const { return Status().st_mode & 07777U; }
  void SetMode(const QString& pathName, mode_t mode) const {
    ASSERT_EQ(chmod(QFile::encodeName(pathName).constData(), mode), 0);
  }
  bool SetAttribute(const QByteArray& path, const char* name, const QByteArray& value) const {
    return setxattr(path.constData(), name, value.constData(),
                    static_cast<std::size_t>(value.size()), 0) == 0;
  }
  QByteArray Attribute(const char* name) const {
    QByteArray value(1000, '\0');
    const ssize_t size = getxattr(Path().constData(), name, value.data(), 1000);
    return size < 0 ? QByteArray("(none)") : value.first(size);
  }
  void Replace() const {
    EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
    EXPECT_EQ(ContentOf(PathOf("x")), "new");
    EXPECT_EQ(Names(), QStringList{"x"});
  }
};

TEST_F(AReplacedFile, KeepsItsPermissions) {
  for (const mode_t mode : {0640U, 0600U, 0666U, 0755U, 0604U}) {
    SetMode(PathOf("x"), mode);
    Replace();
    EXPECT_EQ(Mode(), mode);
  }
}

TEST_F(AReplacedFile, IsAnotherFileUnlessItMustBeWrittenOver) {
  const ino_t before = Status().st_ino;
  Replace();
  EXPECT_NE(Status().st_ino, before);
}

TEST_F(AReplacedFile, KeepsItsOwnerAndGroup) {
  SetMode(PathOf("x"), 0664);
  if (!GiveAway(PathOf("x"), Stranger, Club)) GTEST_SKIP() << "files cannot be given away here";
  const ino_t before = Status().st_ino;
  Replace();
  EXPECT_EQ(Status().st_uid, Stranger);
  EXPECT_EQ(Status().st_gid, Club);
  EXPECT_EQ(Mode(), 0664U);
  EXPECT_NE(Status().st_ino, before);
}

// As in a folder that friends share: the file is a friend's, and may be written by all.
TEST_F(AReplacedFile, OfAFriendIsWrittenOver) {
  if (!GiveAway(PathOf("x"), Stranger, Club)) GTEST_SKIP() << "files cannot be given away here";
  SetMode(PathOf("x"), 0666);
  SetMode(Folder(), 0777);
  const ino_t before = Status().st_ino;
  EXPECT_EQ(RunApart(BecomeOrdinaryUser, [this] { Replace(); }), Apart::Passed);
  EXPECT_EQ(Status().st_ino, before);
  EXPECT_EQ(Status().st_uid, Stranger);
  EXPECT_EQ(Status().st_gid, Club);
  EXPECT_EQ(Mode(), 0666U);
}

TEST_F(AReplacedFile, OfAFriendIsWrittenOverWhereOnlyOwnersMayRemoveFiles) {
  SetMode(PathOf("x"), 0666);
  SetMode(Folder(), 01777);
  EXPECT_EQ(RunApart(BecomeOrdinaryUser, [this] { Replace(); }), Apart::Passed);
}

// As in a container that has been given one file of its computer.
TEST_F(AReplacedFile, ThatIsMountedIsWrittenOver) {
  const Apart outcome = RunApart(MountOnItself(PathOf("x")), [this] { Replace(); });
  if (outcome == Apart::NotAllowed) GTEST_SKIP() << "mounting is not allowed here";
  EXPECT_EQ(outcome, Apart::Passed);
}

TEST_F(AReplacedFile, KeepsItsAttributes) {
  if (!SetAttribute(Path(), "user.note", "mine")) GTEST_SKIP() << "no attributes here";
  const ino_t before = Status().st_ino;
  Replace();
  EXPECT_EQ(Attribute("user.note"), "mine");
  EXPECT_NE(Status().st_ino, before);
}

TEST_F(AReplacedFile, KeepsItsAccessList) {
  const QByteArray list = AccessListWith(6, 4, 0, 4, 0);
  if (!SetAttribute(Path(), AccessList, list)) GTEST_SKIP() << "no access lists here";
  Replace();
  EXPECT_EQ(Attribute(AccessList), list);
  EXPECT_EQ(Mode(), 0640U);
}

TEST_F(AReplacedFile, GetsNoAccessListFromItsFolder) {
  const QByteArray list = AccessListWith(7, 7, 7, 7, 7);
  if (!SetAttribute(QFile::encodeName(Folder()), AccessListOfNewFiles, list)) {
    GTEST_SKIP() << "no access lists here";
  }
  SetMode(PathOf("x"), 0660);
  Replace();
  EXPECT_EQ(Attribute(AccessList), "(none)");
  EXPECT_EQ(Mode(), 0660U);
}

TEST_F(AReplacedFile, KeepsTheBitThatAnotherOwnerWouldTakeAway) {
  SetMode(PathOf("x"), 04750);
  if (!GiveAway(PathOf("x"), Stranger, Club)) GTEST_SKIP() << "files cannot be given away here";
  SetMode(PathOf("x"), 04750);
  Replace();
  EXPECT_EQ(Mode(), 04750U);
}

// The system drops the bit without a word when its giver is not of the group. The folder hands its
// group on, so that nothing else differs.
TEST_F(AReplacedFile, IsWrittenOverWhereItsGroupBitCannotBeGiven) {
  if (!GiveAway(PathOf("x"), Nobody, Club) || !GiveAway(Folder(), 0, Club)) {
    GTEST_SKIP() << "files cannot be given away here";
  }
  SetMode(PathOf("x"), 02664);
  SetMode(Folder(), 02777);
  const ino_t before = Status().st_ino;
  EXPECT_EQ(RunApart(BecomeOrdinaryUser, [this] { Replace(); }), Apart::Passed);
  EXPECT_EQ(Status().st_ino, before);
}

// Not even its owner may read it, nor the attributes that would have to be given to another file.
TEST_F(AReplacedFile, KeepsAttributesThatNobodyMayRead) {
  if (!SetAttribute(Path(), "user.note", "mine")) GTEST_SKIP() << "no attributes here";
  SetMode(Folder(), 0777);
  SetMode(PathOf("x"), 0222);
  if (geteuid() == 0 && !GiveAway(PathOf("x"), Nobody, Nobody)) {
    GTEST_SKIP() << "files cannot be given away here";
  }
  const Apart outcome = RunApart(BecomeOrdinaryUser, [this] {
    EXPECT_EQ(WriteFile(PathOf("x"), "new"), std::nullopt);
    EXPECT_EQ(Mode(), 0222U);
  });
  EXPECT_EQ(outcome, Apart::Passed);
  SetMode(PathOf("x"), 0666);
  EXPECT_EQ(ContentOf(PathOf("x")), "new");
  EXPECT_EQ(Attribute("user.note"), "mine");
}
