#include <gtest/gtest.h>

#include "ui/board/BoardLayout.h"

TEST(BoardLayout, LeavesTheFrameOnBothSidesOfTheSquares) {
  const BoardLayout layout = LayOutBoard(9600, 240);
  EXPECT_DOUBLE_EQ(layout.squareSide, (9600.0 - 480.0) / 8);
}

TEST(BoardLayout, ReachesTheWindowsEdgesWithoutAFrame) {
  const auto edges = CellEdges(LayOutBoard(9600, 0), 1);
  EXPECT_EQ(edges.front(), 0);
  EXPECT_EQ(edges.back(), 640);
}

TEST(BoardLayout, TakesThreeThousandTwipsForTheWidestFrame) {
  EXPECT_DOUBLE_EQ(LayOutBoard(9600, 1500).squareSide, 6600.0 / 8);
}

TEST(BoardLayout, LeavesSquaresOfOnePixelToAFrameWiderThanTheBoard) {
  EXPECT_DOUBLE_EQ(LayOutBoard(2800, 1500).squareSide, TwipsPerPixel);
}

TEST(BoardLayout, RoundsEveryEdgeToADevicePixel) {
  const auto edges = CellEdges(LayOutBoard(TwipsFromPixels(637), 240), 1.25);
  for (std::size_t i = 1; i < edges.size(); ++i) {
    const double exact = (16 + static_cast<double>(i) * (637 - 32) / 8.0) * 1.25;
    EXPECT_NEAR(edges[i], exact, 0.5);
  }
}

TEST(BoardLayout, GivesABorderedCellAPixelLessOnEachSide) {
  const BoardLayout layout = LayOutBoard(9600, 0);
  EXPECT_DOUBLE_EQ(InnerCellSide(layout, true), layout.squareSide - 30);
  EXPECT_DOUBLE_EQ(InnerCellSide(layout, false), layout.squareSide);
}

TEST(BoardLayout, FindsTheSquareUnderAPosition) {
  const BoardLayout layout = LayOutBoard(9600, 0);
  EXPECT_EQ(SquareAt(layout, 1, 0), 0);
  EXPECT_EQ(SquareAt(layout, 1, 79.9), 0);
  EXPECT_EQ(SquareAt(layout, 1, 80), 1);
  EXPECT_EQ(SquareAt(layout, 1, 639.9), 7);
}

TEST(BoardLayout, FindsNoSquareInTheFrame) {
  const BoardLayout layout = LayOutBoard(9600, 240);
  EXPECT_EQ(SquareAt(layout, 1, 15.9), -1);
  EXPECT_EQ(SquareAt(layout, 1, 624), -1);
}
