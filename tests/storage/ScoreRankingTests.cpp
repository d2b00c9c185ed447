#include <algorithm>
#include <random>

#include "storage/ScoreLists.h"
#include "tests/storage/TestFiles.h"

namespace {

constexpr int DoesNotRank = 10;

ScoreRows Rows(const std::vector<std::pair<int, int>>& games) {
  ScoreRows rows;
  for (std::size_t row = 0; row < games.size(); ++row) {
    const FinishedGame game{static_cast<std::int16_t>(games[row].first), games[row].second};
    rows[row] = RowOf(game, QString("Player %1").arg(row + 1));
  }
  return rows;
}

int HighPlace(const std::vector<std::pair<int, int>>& games, std::int16_t moves, int time) {
  return InsertionPlace(ScoreList::High, Rows(games), {moves, time});
}

int LowPlace(const std::vector<std::pair<int, int>>& games, std::int16_t moves, int time) {
  return InsertionPlace(ScoreList::Low, Rows(games), {moves, time});
}

}  // namespace

TEST(TheHighList, TakesItsFirstScoreOnRankOne) {
  EXPECT_EQ(HighPlace({}, 40, 100), 0);
}

TEST(TheHighList, PutsTheLongerTimeBelow) {
  EXPECT_EQ(HighPlace({{40, 100}}, 40, 101), 1);
}

TEST(TheHighList, PutsAnEqualScoreBelowTheOlderOne) {
  EXPECT_EQ(HighPlace({{40, 100}, {40, 200}}, 40, 100), 1);
}

TEST(TheHighList, PutsTheShorterTimeAbove) {
  EXPECT_EQ(HighPlace({{64, 100}}, 64, 99), 0);
}

TEST(TheHighList, PutsMoreMovesAboveWhateverTheTime) {
  EXPECT_EQ(HighPlace({{40, 1}}, 41, 99999), 0);
}

TEST(TheHighList, HasNoPlaceBelowItsTenth) {
  const std::vector<std::pair<int, int>> full(10, {50, 100});
  EXPECT_EQ(HighPlace(full, 49, 1), DoesNotRank);
  EXPECT_EQ(HighPlace(full, 50, 100), DoesNotRank);
  EXPECT_EQ(HighPlace(full, 50, 99), 0);
}

TEST(TheLowList, TakesItsFirstScoreOnRankOne) {
  EXPECT_EQ(LowPlace({}, 20, 100), 0);
}

TEST(TheLowList, PutsFewerMovesAbove) {
  EXPECT_EQ(LowPlace({{5, 100}, {9, 100}}, 7, 1), 1);
}

TEST(TheLowList, PutsAnEqualScoreBelowTheOlderOne) {
  EXPECT_EQ(LowPlace({{5, 100}, {5, 200}}, 5, 100), 1);
}

TEST(TheLowList, PutsTheShorterTimeAbove) {
  EXPECT_EQ(LowPlace({{5, 100}}, 5, 99), 0);
}

TEST(TheLowList, HasNoPlaceBelowItsTenth) {
  const std::vector<std::pair<int, int>> full(10, {5, 100});
  EXPECT_EQ(LowPlace(full, 6, 1), DoesNotRank);
  EXPECT_EQ(LowPlace(full, 5, 100), DoesNotRank);
  EXPECT_EQ(LowPlace(full, 4, 100), 0);
}

TEST(InsertingAScore, MovesTheRowsBelowDownAndDropsTheLast) {
  ScoreRows rows = Rows(std::vector<std::pair<int, int>>(10, {5, 100}));
  const ScoreRows before = rows;
  const ScoreRow row = RowOf({4, 7}, "Ann");
  InsertScore(rows, 2, row);
  EXPECT_TRUE(std::equal(rows.begin(), rows.begin() + 2, before.begin()));
  EXPECT_EQ(rows[2], row);
  EXPECT_TRUE(std::equal(rows.begin() + 3, rows.end(), before.begin() + 2));
}

TEST(InsertingAScore, PushesTheSecondToRankThree) {
  ScoreRows rows;
  for (const auto& [name, time] : {std::pair{"Ann", 100}, {"Bob", 200}, {"Cid", 100}}) {
    const FinishedGame game{40, time};
    InsertScore(rows, InsertionPlace(ScoreList::High, rows, game), RowOf(game, name));
  }
  EXPECT_EQ(rows[0].name, "Ann");
  EXPECT_EQ(rows[1].name, "Cid");
  EXPECT_EQ(rows[2].name, "Bob");
}

TEST(InsertingAScore, MayReplaceTheLast) {
  ScoreRows rows = Rows(std::vector<std::pair<int, int>>(10, {50, 100}));
  InsertScore(rows, 9, RowOf({40, 7}, "Ann"));
  EXPECT_EQ(rows[8].name, "Player 9");
  EXPECT_EQ(rows[9].name, "Ann");
}

TEST(ARowOfTheList, ShowsTheTime) {
  const ScoreRow row = RowOf({64, 7203}, "Ann");
  EXPECT_EQ(row.moves, "64");
  EXPECT_EQ(row.timeText, "1:00:01.5");
  EXPECT_EQ(row.time, 7203);
}

// Games are offered one after the other; what is kept must be the first ten of a stable sort of
// all.
class ChanceLists : public testing::TestWithParam<ScoreList> {
 protected:
  static constexpr int Lists = 50000;

  FinishedGame ChanceGame() {
    const int moves = IsHigh() ? 33 + Below(4) : 1 + Below(4);
    return {static_cast<std::int16_t>(moves), Below(4)};
  }
  static bool IsHigh() { return GetParam() == ScoreList::High; }
  int Below(unsigned bound) { return static_cast<int>(random_() % bound); }

  static bool IsBetter(const ScoreRow& one, const ScoreRow& other) {
    const int oneMoves = one.moves.toInt();
    const int otherMoves = other.moves.toInt();
    if (oneMoves == otherMoves) return one.time < other.time;
    return IsHigh() ? oneMoves > otherMoves : oneMoves < otherMoves;
  }

 private:
  std::mt19937 random_{33};
};

TEST_P(ChanceLists, RankAsAStableSortDoes) {
  for (int list = 0; list < Lists; ++list) {
    ScoreRows rows;
    std::vector<ScoreRow> all;
    for (int count = Below(16); count > 0; --count) {
      const FinishedGame game = ChanceGame();
      const ScoreRow row = RowOf(game, QString::number(count));
      const int place = InsertionPlace(GetParam(), rows, game);
      if (place < DoesNotRank) InsertScore(rows, place, row);
      all.push_back(row);
    }
    std::stable_sort(all.begin(), all.end(), IsBetter);
    all.resize(10);
    ASSERT_TRUE(std::equal(rows.begin(), rows.end(), all.begin()));
  }
}

INSTANTIATE_TEST_SUITE_P(HighAndLow, ChanceLists, testing::Values(ScoreList::High, ScoreList::Low),
                         [](const auto& parameter) {
                           return parameter.param == ScoreList::High ? "High" : "Low";
                         });
