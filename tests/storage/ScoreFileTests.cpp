#include <algorithm>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "storage/ScoreLists.h"
#include "storage/clsIniFile.h"
#include "tests/storage/TestFiles.h"

using Times = std::array<int, ScoreRowCount>;
constexpr Times FiveOfEach{0, 0, 1, 1, 2, 2, 3, 3, 4, 4};

class TheScoreFile : public FolderTest {
 protected:
  QString Path() const { return PathOf("Scores.dat"); }
  ScoreRows ReadHigh() const { return ScoresIn(Path(), ScoreList::High); }
  void Save(std::int16_t moves, std::int32_t time, const QString& name) const {
    const FinishedGame game{moves, time};
    EXPECT_TRUE(Enter(Path(), ListOf(game), game, name));
  }
  // For each path a copy of the program that saves five games.
  static void SaveAtOnce(const std::vector<QString>& paths) {
    for (const QString& path : paths) {
      if (fork() != 0) continue;
      for (std::int16_t game = 0; game < 5; ++game) {
        EXPECT_TRUE(Enter(path, ScoreList::High, {40, game}, path));
      }
      _exit(HasFailure() ? 1 : 0);
    }
    int status = 0;
    while (wait(&status) > 0) EXPECT_EQ(status, 0);
  }
  static Times TimesIn(const QString& path) {
    Times times{};
    const ScoreRows rows = ScoresIn(path, ScoreList::High);
    std::transform(rows.begin(), rows.end(), times.begin(),
                   [](const auto& row) { return row.time; });
    return times;
  }
};

TEST_F(TheScoreFile, HasThirtyKeysForAList) {
  ScoreRows rows;
  rows[0] = RowOf({64, 100}, "Ann");
  const auto entries = ScoreEntries(ScoreList::High, rows);
  ASSERT_EQ(entries.size(), 30U);
  EXPECT_EQ(KeysOf(entries).first(4), QStringList({"Name 1", "Moves 1", "Time 1", "Name 2"}));
  EXPECT_EQ(KeysOf(entries).last(3), QStringList({"Name 10", "Moves 10", "Time 10"}));
}

TEST_F(TheScoreFile, HasEmptyValuesForEmptyRows) {
  ScoreRows rows;
  rows[0] = RowOf({64, 100}, "Ann");
  const auto values = ValuesOf(ScoreEntries(ScoreList::High, rows));
  EXPECT_EQ(values.at("High Scores/Time 1"), "100");
  EXPECT_EQ(values.at("High Scores/Name 2"), "");
  EXPECT_EQ(values.at("High Scores/Moves 2"), "");
  EXPECT_EQ(values.at("High Scores/Time 2"), "");
}

TEST_F(TheScoreFile, HasATimeForEveryRowThatIsNotEmpty) {
  Put("Scores.dat", "[High Scores]\nName 1=Ann\nMoves 2=50\nTime 3=0\n");
  const auto values = ValuesOf(ScoreEntries(ScoreList::High, ReadHigh()));
  EXPECT_EQ(values.at("High Scores/Time 1"), "0");
  EXPECT_EQ(values.at("High Scores/Time 2"), "0");
  EXPECT_EQ(values.at("High Scores/Time 3"), "0");
  EXPECT_EQ(values.at("High Scores/Time 4"), "");
}

TEST_F(TheScoreFile, IsWrittenByteForByte) {
  Save(40, 0, "Ann");
  QByteArray text = "[High Scores]\r\nName 1=Ann\r\nMoves 1=40\r\nTime 1=0\r\n";
  for (int rank = 2; rank <= 10; ++rank) {
    const QByteArray number = QByteArray::number(rank);
    text += "Name " + number + "=\r\nMoves " + number + "=\r\nTime " + number + "=\r\n";
  }
  EXPECT_EQ(ContentOf(Path()), text);
}

TEST_F(TheScoreFile, GivesTheRowsBack) {
  Save(40, 0, "Ann");
  Save(64, 7203, "Ben");
  const ScoreRows rows = ReadHigh();
  EXPECT_EQ(rows[0], RowOf({64, 7203}, "Ben"));
  EXPECT_EQ(rows[1], RowOf({40, 0}, "Ann"));
  EXPECT_EQ(rows[2], ScoreRow());
}

TEST_F(TheScoreFile, KeepsBothListsApart) {
  Save(32, 5, "Low");
  Save(33, 5, "High");
  EXPECT_EQ(ScoresIn(Path(), ScoreList::Low)[0].name, "Low");
  EXPECT_EQ(ScoresIn(Path(), ScoreList::Low)[1], ScoreRow());
  EXPECT_EQ(ReadHigh()[0].name, "High");
  EXPECT_EQ(ReadHigh()[1], ScoreRow());
}

TEST_F(TheScoreFile, NamesTheListsByTheirCaptions) {
  EXPECT_EQ(ScoreSection(ScoreList::High), "High Scores");
  EXPECT_EQ(ScoreSection(ScoreList::Low), "Low Scores");
}

TEST_F(TheScoreFile, GivesEmptyRowsWhenItIsNotThere) {
  EXPECT_EQ(ReadHigh(), ScoreRows());
}

TEST_F(TheScoreFile, GivesEmptyRowsWhenItHoldsNothingOfTheKind) {
  for (const QByteArray& content :
       {QByteArray(), QByteArray(100000, '\0'), QByteArray("[Low Scores]\n"),
        QByteArray("\xFF\xFE[\0H\0", 6), QByteArray("=\n[\n]\n;")}) {
    Put("Scores.dat", content);
    EXPECT_EQ(ReadHigh(), ScoreRows());
  }
}

TEST_F(TheScoreFile, TakesAScoreEvenThen) {
  Put("Scores.dat", QByteArray(1000, '\0'));
  Save(40, 5, "Ann");
  EXPECT_EQ(ReadHigh()[0].name, "Ann");
}

TEST_F(TheScoreFile, IsRefusedWhenItIsHugeAndLeftAsItIs) {
  QFile huge(Put("Scores.dat", "[High Scores]\nName 1=Ann\n"));
  ASSERT_TRUE(huge.resize(100LL * 1024 * 1024));
  EXPECT_EQ(ReadHigh(), ScoreRows());
  EXPECT_FALSE(Enter(Path(), ScoreList::High, {40, 5}, "Ben"));
  EXPECT_EQ(huge.size(), 100LL * 1024 * 1024);
}

TEST_F(TheScoreFile, MayHaveItsKeysOutOfOrderAndRowsMissing) {
  Put("Scores.dat", "[High Scores]\nTime 3=7\nMoves 3=50\nName 10=Zoe\nName 3=Ann\nMoves 1=60\n");
  const ScoreRows rows = ReadHigh();
  EXPECT_EQ(rows[0].name, "");
  EXPECT_EQ(rows[0].moves, "60");
  EXPECT_EQ(rows[0].timeText, "");
  EXPECT_EQ(rows[2], RowOf({50, 7}, "Ann"));
  EXPECT_EQ(rows[9].name, "Zoe");
}

TEST_F(TheScoreFile, MayHaveNumbersThatAreNone) {
  Put("Scores.dat", "[High Scores]\nName 1=Ann\nMoves 1=many\nTime 1=long\n");
  const ScoreRows rows = ReadHigh();
  EXPECT_EQ(rows[0].moves, "many");
  EXPECT_EQ(rows[0].timeText, "0:00:00.0");
  EXPECT_EQ(InsertionPlace(ScoreList::High, rows, {40, 5}), 0);
}

TEST_F(TheScoreFile, KeepsNamesAsTheyWereEntered) {
  for (const QString name : {"\"Ann\"", "'Ann'", "a=b", "[High Scores]", ";Ann", "<b>Ann</b>",
                             "\u00c5sa \u00d6berg", "  ", "\" ", "Name 2=x"}) {
    Put("Scores.dat", "");
    Save(40, 5, name);
    EXPECT_EQ(ReadHigh()[0].name, name);
    EXPECT_EQ(ReadHigh()[1], ScoreRow());
  }
}

TEST_F(TheScoreFile, ReadsANameOfAThousandCharactersCutTo255) {
  Save(40, 5, QString(1000, 'A'));
  EXPECT_EQ(ReadHigh()[0].name, QString(255, 'A'));
}

TEST_F(TheScoreFile, IsNotChangedByAGameThatDoesNotRank) {
  for (int game = 0; game < 10; ++game) Save(60, 5, "Ann");
  const QByteArray before = ContentOf(Path());
  Save(60, 5, "Ben");
  EXPECT_EQ(ContentOf(Path()), before);
}

TEST_F(TheScoreFile, TakesInWhatAnotherCopyWroteMeanwhile) {
  Save(40, 5, "Ann");
  const ScoreRows shown = ReadHigh();
  ASSERT_EQ(InsertionPlace(ScoreList::High, shown, {50, 5}), 0);
  Save(60, 5, "Other copy");
  Save(50, 5, "Ben");
  const ScoreRows rows = ReadHigh();
  EXPECT_EQ(rows[0].name, "Other copy");
  EXPECT_EQ(rows[1].name, "Ben");
  EXPECT_EQ(rows[2].name, "Ann");
}

TEST_F(TheScoreFile, LosesNoScoreOfCopiesThatSaveAtOnce) {
  SaveAtOnce({Path(), Path()});
  EXPECT_EQ(TimesIn(Path()), FiveOfEach);
}

TEST_F(TheScoreFile, LosesNoScoreOfTwoFoldersThatShareIt) {
  const QString path = Put("Scores.dat", "");
  ASSERT_TRUE(QDir(Folder()).mkpath("hard") && QDir(Folder()).mkpath("symbolic"));
  const QString hard = PathOf("hard/Scores.dat");
  const QString symbolic = PathOf("symbolic/Scores.dat");
  ASSERT_EQ(symlink("../Scores.dat", QFile::encodeName(symbolic).constData()), 0);
  SaveAtOnce({path, symbolic});
  EXPECT_EQ(TimesIn(path), FiveOfEach);

  Put("Scores.dat", "");
  ASSERT_EQ(link(QFile::encodeName(path).constData(), QFile::encodeName(hard).constData()), 0);
  SaveAtOnce({symbolic, hard});
  EXPECT_EQ(TimesIn(path), FiveOfEach);
}

TEST_F(TheScoreFile, IsWaitedForInTheOtherFolderToo) {
  const QString path = Put("Scores.dat", "");
  ASSERT_TRUE(QDir(Folder()).mkpath("other"));
  const QString other = PathOf("other/Scores.dat");
  ASSERT_EQ(link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData()), 0);
  const auto whileTheOtherSaves = [&](const QByteArray& text) {
    const auto change = [](const QByteArray&) { return QByteArray("[S]\r\n"); };
    EXPECT_EQ(ChangeIniText(path, change, Wait::Not), Stored::NotYet);
    return text + ";\r\n";
  };
  EXPECT_EQ(ChangeIniText(other, whileTheOtherSaves, Wait::Not), Stored::Yes);
  EXPECT_EQ(ContentOf(path), ";\r\n");
}
