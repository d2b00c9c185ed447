#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>

#include "storage/ScoreLists.h"
#include "storage/clsIniFile.h"
#include "tests/storage/TestFiles.h"

namespace {

constexpr int Copies = 4;
constexpr int Killed = 2;
constexpr int UsualRounds = 10;

using Save = std::function<bool(int number)>;

// Saves one thing after the other and writes down each that was saved.
[[noreturn]] void RunCopy(const Save& save, int copy, int things, int diary) {
  for (int thing = 0; thing < things; ++thing) {
    const auto number = static_cast<char>(copy * things + thing);
    if (save(number) && write(diary, &number, 1) != 1) _exit(1);
  }
  _exit(0);
}

}  // namespace

class RunningCopies : public FolderTest {
 protected:
  // What several copies that save at once, some of which are killed, were told to be saved.
  std::set<int> RunAll(const Save& save, int thingsOfEach) {
    int diary[2];
    EXPECT_EQ(pipe(diary), 0);
    std::vector<pid_t> copies;
    for (int copy = 0; copy < Copies; ++copy) {
      copies.push_back(fork());
      if (copies.back() == 0) RunCopy(save, copy, thingsOfEach, diary[1]);
    }
    close(diary[1]);
    std::set<int> saved = ReadSome(diary[0], random_() % 4);
    for (int copy = 0; copy < Killed; ++copy) kill(copies.at(copy), SIGKILL);
    saved.merge(ReadSome(diary[0], std::size_t{Copies} * 100));
    close(diary[0]);
    for (const pid_t copy : copies) waitpid(copy, nullptr, 0);
    return saved;
  }

 private:
  static std::set<int> ReadSome(int diary, std::size_t most) {
    std::set<int> numbers;
    char number = 0;
    while (numbers.size() < most && read(diary, &number, 1) == 1) numbers.insert(number);
    return numbers;
  }

  std::mt19937 random_{1848};
};

TEST_F(RunningCopies, LoseNoSettingThatWasSavedWhenSomeAreKilled) {
  for (int round = 0; round < CountFrom("GALLOPADE_ROUNDS", UsualRounds); ++round) {
    const QString path = Put("x.ini", "; mine\r\n");
    const clsIniFile iniFile{};
    QString error;
    const auto save = [&](int number) {
      return iniFile.WriteIniFileValue(path, "S", QString("Key %1").arg(number), "1", error);
    };
    for (const int number : RunAll(save, 10)) {
      EXPECT_TRUE(ContentOf(path).contains(QString("Key %1=1\r\n").arg(number).toLatin1()));
    }
    EXPECT_TRUE(ContentOf(path).startsWith("; mine\r\n"));
    EXPECT_TRUE(save(99));
    EXPECT_EQ(Names(), QStringList{"x.ini"});
  }
}

TEST_F(RunningCopies, LoseNoScoreThatWasSavedWhenSomeAreKilled) {
  for (int round = 0; round < CountFrom("GALLOPADE_ROUNDS", UsualRounds); ++round) {
    const QString path = PathOf("Scores.dat");
    const auto save = [&](int number) { return Enter(path, ScoreList::High, {40, number}, "Ann"); };
    const std::set<int> saved = RunAll(save, 2);
    std::set<int> listed;
    for (const ScoreRow& row : ScoresIn(path, ScoreList::High)) {
      if (!row.moves.isEmpty()) listed.insert(row.time);
    }
    EXPECT_TRUE(std::includes(listed.begin(), listed.end(), saved.begin(), saved.end()));
    EXPECT_TRUE(save(99));
    EXPECT_EQ(Names(), QStringList{"Scores.dat"});
    QFile::remove(path);
  }
}
