#include <unistd.h>

#include <QFile>

#include "storage/FileReader.h"
#include "storage/FileWriter.h"
#include "storage/PathName.h"
#include "tests/storage/TestFiles.h"

TEST(APathName, ComesBackWhateverItsBytesAre) {
  for (const QByteArray bytes :
       {"/a/b.knight", "", "caf\xC3\xA9", "caf\xE9", "\xFF\xFE", "\xC3", "\xE2\x82", "\xE2\x82\xAC",
        "\xF0\x9F\x99\x82", "\xF0\x9F\x99", "\xED\xB2\x80", "\xC0\xAF", "a\xE9/\xC3\xA9"}) {
    EXPECT_EQ(BytesOfPath(PathFromBytes(bytes)), bytes);
  }
}

TEST(APathName, IsItsTextWhereItIsOne) {
  EXPECT_EQ(PathFromBytes("caf\xC3\xA9 \xF0\x9F\x99\x82"), QString("caf\u00e9 \U0001F642"));
  EXPECT_EQ(BytesOfPath(QString("caf\u00e9 \U0001F642")), "caf\xC3\xA9 \xF0\x9F\x99\x82");
}

class AFileWhoseNameIsNoText : public FolderTest {};

TEST_F(AFileWhoseNameIsNoText, IsWrittenAndRead) {
  const QString path = PathFromBytes(QFile::encodeName(Folder()) + "/caf\xE9.knight");
  EXPECT_EQ(WriteFile(path, "new"), std::nullopt);
  EXPECT_EQ(access(BytesOfPath(path).constData(), F_OK), 0);
  EXPECT_EQ(ReadFile(path, 100).bytes, "new");
  EXPECT_EQ(unlink(BytesOfPath(path).constData()), 0);  // Qt cannot name it
}
