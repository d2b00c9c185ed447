#include <set>

#include <gtest/gtest.h>

#include "core/Square.h"
#include "tests/support/Games.h"

TEST(Square, IsNumberedDownItsColumn) {
  EXPECT_EQ(SquareIndex(0, 1), 1);
  EXPECT_EQ(SquareIndex(1, 0), 8);
  EXPECT_EQ(SquareIndex(7, 7), 63);
}

TEST(Square, IsFoundAgainByItsNumber) {
  for (int index = 0; index < SquareCount; ++index) {
    EXPECT_EQ(SquareIndex(ColumnOf(index), RowOf(index)), index);
    EXPECT_TRUE(IsSquare(ColumnOf(index), RowOf(index)));
  }
}

TEST(Square, IsNamedFromA8AtTheTopLeftToH1AtTheBottomRight) {
  EXPECT_EQ(SquareName(0, 0), "A8");
  EXPECT_EQ(SquareName(7, 0), "H8");
  EXPECT_EQ(SquareName(0, 7), "A1");
  EXPECT_EQ(SquareName(7, 7), "H1");
}

TEST(Square, EndsAtTheEdgesOfTheBoard) {
  EXPECT_FALSE(IsSquare(-1, 0));
  EXPECT_FALSE(IsSquare(0, -1));
  EXPECT_FALSE(IsSquare(8, 0));
  EXPECT_FALSE(IsSquare(0, 8));
  EXPECT_FALSE(IsSquareIndex(-1));
  EXPECT_FALSE(IsSquareIndex(64));
}

TEST(KnightsMove, GoesTwoSquaresOneWayAndOneTheOther) {
  for (const Offset offset : KnightMoveOffsets) {
    EXPECT_TRUE(IsKnightsMove(4, 4, 4 + offset.dx, 4 + offset.dy));
  }
}

TEST(KnightsMove, LeadsFromTheMiddleToEightSquaresOnly) {
  int reached = 0;
  for (int index = 0; index < SquareCount; ++index) {
    reached += IsKnightsMove(4, 4, ColumnOf(index), RowOf(index)) ? 1 : 0;
  }
  EXPECT_EQ(reached, 8);
}

TEST(KnightsMove, HasEightDifferentOffsets) {
  std::set<std::pair<int, int>> different;
  for (const Offset offset : KnightMoveOffsets) different.emplace(offset.dx, offset.dy);
  EXPECT_EQ(different.size(), 8U);
}

TEST(KnownTour, VisitsEverySquareByKnightsMoves) {
  const auto tour = SquaresNamed(Games::CompleteTour);
  ASSERT_EQ(tour.size(), 64U);
  std::set<int> visited{SquareIndex(tour[0].x, tour[0].y)};
  for (std::size_t i = 1; i < tour.size(); ++i) {
    EXPECT_TRUE(IsKnightsMove(tour[i - 1].x, tour[i - 1].y, tour[i].x, tour[i].y)) << i;
    visited.insert(SquareIndex(tour[i].x, tour[i].y));
  }
  EXPECT_EQ(visited.size(), 64U);
}
