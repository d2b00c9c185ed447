#include <random>

#include <gtest/gtest.h>

#include "solver/TourSearch.h"
#include "tests/solver/RandomPositions.h"
#include "tests/support/Games.h"

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

TEST(TourSearchTest, GoesBackToTheKnightsOwnSquareWhenItIsFree) {
  GameState game;
  game.Board.fill(GameState::Visited);
  game.Cell(0, 0) = GameState::Unvisited;
  game.Cell(1, 2) = GameState::Unvisited;
  game.MoveCount = 62;
  game.MoveList[61] = {0, 0};
  TourSearch search(game);
  EXPECT_EQ(search.Run(100), TourSearch::Outcome::Solved);
  EXPECT_EQ(search.Move(62), (MoveRow{1, 2}));
  EXPECT_EQ(search.Move(63), (MoveRow{0, 0}));
}

TEST(TourSearchTest, TriesNothingMoreWhenTheListOfMovesIsFullBeforeTheBoardIs) {
  GameState game = GameOf({{0, 0}});
  game.MoveCount = SquareCount;
  TourSearch search(game);
  EXPECT_EQ(search.Run(100), TourSearch::Outcome::Exhausted);
  EXPECT_EQ(search.Entries(), 1);
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

// On its way it leaves a square behind, goes through the rest and comes back. The next time the
// rest is all that is free, and the tour runs through it.
TEST(TourSearchTest, FindsATourOverSquaresThatItHasBeenThroughWithAnotherLeftFree) {
  TourSearch search(GameOf(
      SquaresNamed("H5 F4 D3 B2 A4 C3 B5 A3 B1 D2 F3 E1 C2 A1 B3 C1 A2 B4 C6 E5 C4 A5 B7 D8 F7 H8 "
                   "G6 F8 H7 G5 H3 G1 E2 D4 F5 H4 G2 E3 D1 F2 H1 G3")));
  EXPECT_EQ(search.Run(1000), TourSearch::Outcome::Solved);
  EXPECT_EQ(search.Entries(), 59);
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
