#include <gtest/gtest.h>

#include "solver/SubtreeSizes.h"

namespace {

constexpr SquareSet Squares = 0x00ff00ff00ff00ffU;
constexpr Subtree Kept{Squares, 27, true};

class KeptSizes : public testing::Test {
 protected:
  KeptSizes() { sizes_.Keep(Kept, 123456789012); }

  SubtreeSizes sizes_;
};

}  // namespace

TEST_F(KeptSizes, AreFound) {
  EXPECT_EQ(sizes_.Find(Kept), 123456789012);
}

TEST_F(KeptSizes, AreThoseOfTheSameSquares) {
  EXPECT_EQ(sizes_.Find({Squares ^ OneSquare(0), Kept.knight, Kept.closing}),
            SubtreeSizes::Unknown);
}

TEST_F(KeptSizes, AreThoseOfTheSameKnight) {
  for (int knight = 0; knight < SquareCount; ++knight) {
    if (knight == Kept.knight) continue;
    EXPECT_EQ(sizes_.Find({Squares, knight, Kept.closing}), SubtreeSizes::Unknown) << knight;
  }
}

TEST_F(KeptSizes, AreNotThoseOfASubtreeThatHoldsNoTour) {
  EXPECT_EQ(sizes_.Find({Squares, Kept.knight, false}), SubtreeSizes::Unknown);
}
