#include <algorithm>
#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

#include <QFileInfo>

#include "storage/FileWriter.h"
#include "storage/ScoreLists.h"
#include "storage/clsIniFile.h"
#include "tests/storage/TestFiles.h"

namespace {

constexpr int UsualKills = 200;
constexpr int UsualKillsAmongScores = 1000;

// What survives a kill is in the system's hands, not on its way to a slow disk: memory serves as
// well, and many times faster.
QString FastPlace() {
  const QFileInfo memory("/dev/shm");
  return memory.isWritable() ? memory.filePath() : QDir::tempPath();
}

struct Saver {
  pid_t process;
  std::chrono::microseconds firstSave;  // how long it took
};

// A process that saves again and again until it is killed.
Saver StartSaving(const std::function<void()>& save) {
  using std::chrono::steady_clock;
  const auto start = steady_clock::now();
  int ready[2];
  EXPECT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  if (child == 0) {
    save();
    EXPECT_EQ(write(ready[1], "!", 1), 1);
    while (true) save();
  }
  close(ready[1]);
  char signal = 0;
  EXPECT_EQ(read(ready[0], &signal, 1), 1);
  close(ready[0]);
  return {child,
          std::chrono::duration_cast<std::chrono::microseconds>(steady_clock::now() - start)};
}

}  // namespace

class KilledWhileSaving : public FolderTest {
 protected:
  KilledWhileSaving() : FolderTest(FastPlace()) {}

  // Kills a process at chance moments of its saving and looks at what it left, as often as asked
  // for.
  void Run(const std::function<void()>& save, const std::function<void()>& look,
           int usualKills = UsualKills) {
    const int kills = CountFrom("GALLOPADE_KILLS", usualKills);
    for (int kill = 0; kill < kills && !HasFailure(); ++kill) {
      const Saver saver = StartSaving(save);
      const auto longestLife = static_cast<unsigned>(saver.firstSave.count());
      usleep(std::uniform_int_distribution<unsigned>(0, longestLife)(random_));
      ::kill(saver.process, SIGKILL);
      waitpid(saver.process, nullptr, 0);
      look();
    }
  }

 private:
  std::mt19937 random_{1848};
};

TEST_F(KilledWhileSaving, LeavesTheOldFileOrTheNewOneAndNothingThatTheNextDoesNotClearAway) {
  const QByteArray one(100, '1');
  const QByteArray two(50000, '2');
  const QString path = Put("x", one);
  Run(
      [&] {
        std::ignore = WriteFile(path, two);
        std::ignore = WriteFile(path, one);
      },
      [&] {
        const QByteArray content = ContentOf(path);
        EXPECT_TRUE(content == one || content == two) << content.size() << " bytes";
        std::ignore = WriteFile(path, one);
        EXPECT_EQ(Names(), QStringList{"x"});
      });
}

TEST_F(KilledWhileSaving, LeavesSettingsThatWereWrittenTogether) {
  const QString path = Put("x.ini", "; mine\r\n[Other]\r\nKey=kept\r\n[S]\r\nA=0\r\nB=0\r\n");
  const clsIniFile iniFile{};
  const auto read = [&](const QString& section, const QString& key) {
    QString value;
    QString error;
    EXPECT_TRUE(iniFile.ReadIniFileValue(path, section, key, value, error));
    return value;
  };
  Run(
      [&] {
        const QString next = QString::number(read("S", "A").toInt() + 1);
        QString error;
        std::ignore = iniFile.WriteIniFileValues(path, {{"S", "A", next}, {"S", "B", next}}, error);
      },
      [&] {
        EXPECT_EQ(read("S", "A"), read("S", "B"));
        EXPECT_EQ(read("Other", "Key"), "kept");
      });
}

TEST_F(KilledWhileSaving, LosesNoOldScore) {
  const QString path = PathOf("Scores.dat");
  for (std::int16_t moves = 64; moves > 59; --moves) {
    EXPECT_TRUE(Enter(path, ScoreList::High, {moves, 100}, QString("Old %1").arg(moves)));
  }
  const ScoreRows old = ScoresIn(path, ScoreList::High);
  const QByteArray oldFile = ContentOf(path);
  Run(
      [&] {
        std::ignore = WriteFile(path, oldFile);
        Enter(path, ScoreList::High, {40, 100}, "New");
      },
      [&] {
        const ScoreRows rows = ScoresIn(path, ScoreList::High);
        EXPECT_TRUE(std::equal(old.begin(), old.begin() + 5, rows.begin()));
        EXPECT_TRUE(rows[5] == ScoreRow() || rows[5] == RowOf({40, 100}, "New"));
      },
      UsualKillsAmongScores);
}

TEST_F(KilledWhileSaving, DoesNotKeepTheNextOneFromWriting) {
  const QString path = PathOf("x.ini");
  const clsIniFile iniFile{};
  QString error;
  Run([&] { std::ignore = iniFile.WriteIniFileValue(path, "S", "Key", "1", error); },
      [&] { EXPECT_TRUE(iniFile.WriteIniFileValue(path, "S", "Key", "2", error)); });
}
