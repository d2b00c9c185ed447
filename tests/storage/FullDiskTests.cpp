#include <unistd.h>

#include <QFile>

#include "storage/ChessboardFile.h"
#include "storage/FileWriter.h"
#include "storage/GameFile.h"
#include "storage/clsIniFile.h"
#include "tests/storage/TestFiles.h"

namespace {

constexpr int DiskKilobytes = 64;
constexpr qint64 PageBytes = 4096;

}  // namespace

class OnAFullDisk : public FolderTest {
 protected:
  // Runs the body where not one more byte can be written, beside a file "x" with the text "old".
  void Run(const std::function<void()>& body, int freePages = 0) const {
    const Apart outcome = RunApart(MountSmallDisk(Folder(), DiskKilobytes), [&] {
      Put("x", "old");
      Fill();
      Free(freePages);
      body();
    });
    if (outcome == Apart::NotAllowed) GTEST_SKIP() << "mounting is not allowed here";
    EXPECT_EQ(outcome, Apart::Passed);
  }

 private:
  void Fill() const {
    QFile filler(PathOf("filler"));
    EXPECT_TRUE(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(1024, 'f')) > 0) {
    }
  }
  void Free(int pages) const {
    QFile filler(PathOf("filler"));
    EXPECT_TRUE(filler.resize(filler.size() - pages * PageBytes));
  }
};

TEST_F(OnAFullDisk, ASmallFileStaysAsItWas) {
  Run([this] {
    EXPECT_EQ(WriteFile(PathOf("x"), "new"), ProgramError::DiskFull);
    EXPECT_EQ(ContentOf(PathOf("x")), "old");
  });
}

TEST_F(OnAFullDisk, ALargeFileStaysAsItWas) {
  Run([this] {
    EXPECT_EQ(WriteFile(PathOf("x"), QByteArray(1000000, 'n')), ProgramError::DiskFull);
    EXPECT_EQ(ContentOf(PathOf("x")), "old");
  });
}

TEST_F(OnAFullDisk, AFileInAFolderThatTakesNoOtherStaysAsItWas) {
  if (geteuid() != 0) GTEST_SKIP() << "files cannot be given away here";
  Run([this] {
    EXPECT_TRUE(GiveAway(PathOf("x"), Nobody, Nobody));
    EXPECT_TRUE(QFile::setPermissions(Folder(), QFile::ReadOther | QFile::ExeOther));
    EXPECT_TRUE(BecomeOrdinaryUser());
    EXPECT_EQ(WriteFile(PathOf("x"), QByteArray(1000000, 'n')), ProgramError::DiskFull);
    EXPECT_EQ(ContentOf(PathOf("x")), "old");
  });
}

TEST_F(OnAFullDisk, NoNewFileAppears) {
  Run([this] {
    EXPECT_EQ(WriteFile(PathOf("y"), "new"), ProgramError::DiskFull);
    EXPECT_EQ(Names(), QStringList({"filler", "x"}));
  });
}

TEST_F(OnAFullDisk, AGameIsNotSavedAndTheFailureIsKnown) {
  Run([this] {
    EXPECT_EQ(WriteFile(PathOf("x"), FormatGame(GameState())), ProgramError::DiskFull);
    EXPECT_EQ(ContentOf(PathOf("x")), "old");
  });
}

TEST_F(OnAFullDisk, SettingsStayAsTheyWere) {
  Run([this] {
    QString error;
    EXPECT_FALSE(clsIniFile().WriteIniFileValue(PathOf("x"), "Settings", "State", "2", error));
    EXPECT_EQ(ContentOf(PathOf("x")), "old");
  });
}

TEST_F(OnAFullDisk, AScoreListStaysAsItWas) {
  Run([this] {
    EXPECT_FALSE(Enter(PathOf("x"), ScoreList::High, {40, 100}, "Ann"));
    EXPECT_EQ(ContentOf(PathOf("x")), "old");
  });
}

TEST_F(OnAFullDisk, AChessboardStaysAsItWas) {
  Run([this] {
    EXPECT_EQ(SaveChessboard(PathOf("x"), Settings()), ProgramError::DiskFull);
    EXPECT_EQ(ContentOf(PathOf("x")), "old");
  });
}

class OnANearlyFullDisk : public OnAFullDisk, public testing::WithParamInterface<int> {
 protected:
  // Whatever room there is, the file changes if the player is told so, and only then.
  void Save(const std::function<bool(const QString&)>& save) const {
    Run(
        [&] {
          const bool isTold = save(PathOf("x"));
          EXPECT_EQ(ContentOf(PathOf("x")) != "old", isTold);
          EXPECT_EQ(Names(), QStringList({"filler", "x"}));
          EXPECT_TRUE(QFile::remove(PathOf("filler")));
          EXPECT_TRUE(save(PathOf("x")));
          EXPECT_EQ(Names(), QStringList({"x"}));
        },
        GetParam());
  }
};

TEST_P(OnANearlyFullDisk, AGameIsSavedOrTold) {
  Save([](const QString& path) { return !WriteFile(path, FormatGame(GameState())); });
}

TEST_P(OnANearlyFullDisk, SettingsAreSavedOrTold) {
  Save([](const QString& path) {
    QString error;
    return clsIniFile().WriteIniFileValue(path, "Settings", "State", "2", error);
  });
}

TEST_P(OnANearlyFullDisk, AScoreIsSavedOrTold) {
  Save([](const QString& path) { return Enter(path, ScoreList::High, {40, 100}, "Ann"); });
}

TEST_P(OnANearlyFullDisk, AChessboardIsSavedOrTold) {
  Save([](const QString& path) { return !SaveChessboard(path, Settings()); });
}

TEST_P(OnANearlyFullDisk, AnExportOfThreePagesIsSavedOrTold) {
  Save([](const QString& path) { return !WriteFile(path, QByteArray(3 * PageBytes, 'm')); });
}

INSTANTIATE_TEST_SUITE_P(FreePages, OnANearlyFullDisk, testing::Range(0, 4));
