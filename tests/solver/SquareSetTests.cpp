#include <gtest/gtest.h>

#include "solver/SquareSet.h"

TEST(ReachableSquares, AreAllWhereNoneIsCutOff) {
  const SquareSet all = ~SquareSet{0};
  EXPECT_EQ(Reachable(OneSquare(0), all, all), all);
}

TEST(ReachableSquares, LeaveOutASquareThatIsCutOff) {
  for (int index = 0; index < SquareCount; ++index) {
    const SquareSet within = ~KnightTargets[static_cast<std::size_t>(index)];
    const SquareSet others = within & ~OneSquare(index);
    EXPECT_EQ(Reachable(others, within, within), others) << index;
  }
}

TEST(ReachableSquares, AreNotLookedForBeyondTheGoals) {
  const SquareSet all = ~SquareSet{0};
  EXPECT_EQ(Reachable(OneSquare(0), OneSquare(0), all), all);
}
