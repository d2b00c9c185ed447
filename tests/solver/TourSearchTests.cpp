#include <random>

#include <gtest/gtest.h>

#include "solver/TourSearch.h"
#include "tests/solver/RandomPositions.h"

namespace {

GameState GameOf(const std::vector<MoveRow>& moves) {
  GameState game;
  for (const MoveRow& move : moves) {
    game.Cell(move.x, move.y) = GameState::Visited;
    game.MoveList[static_cast<std::size_t>(game.MoveCount++)] = move;
  }
  return game;
}

std::vector<MoveRow> MovesOf(const TourSearch& search) {
  std::vector<MoveRow> moves;
  moves.reserve(static_cast<std::size_t>(search.MoveCount()));
  for (int i = 0; i < search.MoveCount(); ++i) moves.push_back(search.Move(i));
  return moves;
}

// A search that pauses on every entry has no use for what it knows of the subtrees.
TourSearch::Outcome WalkTo(TourSearch& search, std::int64_t entries) {
  TourSearch::Outcome outcome = TourSearch::Outcome::Paused;
  while (search.Entries() < entries && outcome == TourSearch::Outcome::Paused) {
    outcome = search.Run(1);
  }
  return outcome;
}

}  // namespace

TEST(TourSearchTest, MakesItsFirstEntryOnTheSquareWhereItBegins) {
  TourSearch search(GameOf({{0, 0}}));
  EXPECT_EQ(search.Run(1), TourSearch::Outcome::Paused);
  EXPECT_EQ(search.Entries(), 1);
  EXPECT_EQ(MovesOf(search), (std::vector<MoveRow>{{0, 0}}));
}

TEST(TourSearchTest, TriesTheEightMovesInTheirOrder) {
  TourSearch search(GameOf({{3, 3}}));
  search.Run(2);
  EXPECT_EQ(search.Move(1), (MoveRow{4, 5}));
  search.Run(1);
  EXPECT_EQ(search.Move(2), (MoveRow{5, 7}));
}

TEST(TourSearchTest, StandsWhereEveryEntryOnTheWayWouldHaveBroughtIt) {
  std::mt19937 random(7);
  TourSearch folded(GameOf({{0, 0}}));
  TourSearch walked(GameOf({{0, 0}}));
  for (int pause = 0; pause < 300; ++pause) {
    const auto entries = static_cast<std::int64_t>(1 + random() % 30'000);
    ASSERT_EQ(folded.Run(entries), TourSearch::Outcome::Paused);
    ASSERT_EQ(WalkTo(walked, folded.Entries()), TourSearch::Outcome::Paused);
    ASSERT_EQ(folded.Entries(), walked.Entries());
    ASSERT_EQ(MovesOf(folded), MovesOf(walked)) << folded.Entries();
  }
}

TEST(TourSearchTest, EndsAfterAsManyEntriesHoweverOftenItPauses) {
  std::mt19937 random(11);
  for (int position = 0; position < 50; ++position) {
    const GameState game = GameOf(RandomWalk(random, 36, 60));
    TourSearch folded(game);
    TourSearch walked(game);
    const TourSearch::Outcome outcome = folded.Run(1'000'000'000);
    ASSERT_NE(outcome, TourSearch::Outcome::Paused);
    ASSERT_EQ(WalkTo(walked, 1'000'000'000), outcome);
    ASSERT_EQ(folded.Entries(), walked.Entries());
    ASSERT_EQ(MovesOf(folded), MovesOf(walked));
  }
}

TEST(TourSearchTest, PausesOnItsLastEntryBeforeItEnds) {
  std::mt19937 random(13);
  const GameState game = GameOf(RandomWalk(random, 50, 50));
  TourSearch whole(game);
  ASSERT_EQ(whole.Run(1'000'000'000), TourSearch::Outcome::Exhausted);

  TourSearch search(game);
  EXPECT_EQ(search.Run(whole.Entries()), TourSearch::Outcome::Paused);
  EXPECT_EQ(search.Run(1), TourSearch::Outcome::Exhausted);
  EXPECT_EQ(search.Entries(), whole.Entries());
}
