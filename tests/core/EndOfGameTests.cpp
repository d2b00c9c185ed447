#include <algorithm>

#include "tests/support/GameTest.h"

namespace {

class EndOfGame : public GameTest {
 protected:
  // Takes every square but the one named.
  void LeaveOnlyFree(std::string_view square) {
    for (int index = 0; index < SquareCount; ++index) {
      state.Cell(ColumnOf(index), RowOf(index)) =
          index == IndexOf(square) ? GameState::Unvisited : GameState::Visited;
    }
  }
  bool IsOverOn(std::string_view square) const {
    const MoveRow row = SquareNamed(square);
    return game.CheckIfGameOver(row.x, row.y);
  }
  std::string LastAnnouncement() const {
    const auto isAnnouncement = [](const std::string& line) {
      return line.starts_with("EndGame ");
    };
    const auto line = std::find_if(window.log.rbegin(), window.log.rend(), isAnnouncement);
    return line == window.log.rend() ? "none" : *line;
  }
};

}  // namespace

TEST_F(EndOfGame, IsNotReachedWhileOneOfTheEightSquaresIsFree) {
  for (const std::string_view square : {"C6", "C4", "D7", "D3", "F7", "F3", "G6", "G4"}) {
    LeaveOnlyFree(square);
    EXPECT_FALSE(IsOverOn("E5")) << square;
  }
}

TEST_F(EndOfGame, IsReachedWhenOnlySquaresOutOfReachAreFree) {
  LeaveOnlyFree("E6");
  EXPECT_TRUE(IsOverOn("E5"));
}

TEST_F(EndOfGame, ComesInACornerWhenItsTwoSquaresAreTaken) {
  Begin();
  state.Cell(2, 1) = GameState::Visited;
  EXPECT_FALSE(IsOverOn("A8"));
  state.Cell(1, 2) = GameState::Visited;
  EXPECT_TRUE(IsOverOn("A8"));
}

TEST_F(EndOfGame, IsTheSameInEveryCorner) {
  for (const std::string_view corner : {"A8", "H8", "A1", "H1"}) {
    LeaveOnlyFree(corner);
    EXPECT_TRUE(IsOverOn(corner)) << corner;
  }
  LeaveOnlyFree("F2");
  EXPECT_FALSE(IsOverOn("H1"));
  LeaveOnlyFree("B3");
  EXPECT_FALSE(IsOverOn("A1"));
}

TEST_F(EndOfGame, IsAnnouncedAfterTwentyMoves) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_EQ(LastAnnouncement(), "EndGame &Submit to Scores|There are no more valid moves.|20|0");
}

TEST_F(EndOfGame, IsNoGoodGameAfterThirtyTwoMoves) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter32);
  EXPECT_EQ(LastAnnouncement(), "EndGame &Submit to Scores|There are no more valid moves.|32|0");
}

TEST_F(EndOfGame, IsAGoodGameAfterThirtyThreeMoves) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter33);
  EXPECT_EQ(LastAnnouncement(),
            "EndGame &Submit to Scores|Sorry, there are no more valid moves.|33|0");
}

TEST_F(EndOfGame, IsAVictoryAfterSixtyFourMoves) {
  Begin();
  PlayTour(game, 64);
  EXPECT_EQ(LastAnnouncement(),
            "EndGame &Submit to Scores|Congratulations, you have mastered Gallopade Nova.|64|0");
}

TEST_F(EndOfGame, IsNotAnnouncedBeforeTheLastMove) {
  Begin();
  PlayTour(game, 63);
  EXPECT_EQ(LastAnnouncement(), "none");
}

TEST_F(EndOfGame, OffersTheReplayOfAGameThatMayNotScore) {
  Begin();
  game.ExcludeFromScores();
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_EQ(LastAnnouncement(), "EndGame View &Replay|There are no more valid moves.|20|0");
}

TEST_F(EndOfGame, ReportsTheTimeOnTheClock) {
  Begin();
  PlayTour(game, 2);
  for (int tick = 0; tick < 7; ++tick) game.tmrTime_Timer();
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_EQ(LastAnnouncement(), "EndGame &Submit to Scores|There are no more valid moves.|20|7");
}

TEST_F(EndOfGame, IsNotAnnouncedWhileTheProgramMakesTheMoves) {
  Begin();
  state.ApplyingMoves = true;
  for (const MoveRow& square : SquaresNamed(Games::DeadEndAfter20)) {
    if (state.Cell(square.x, square.y) == GameState::Unvisited) game.ValidMove(square.x, square.y);
  }
  EXPECT_TRUE(IsOverOn("A1"));
  EXPECT_EQ(LastAnnouncement(), "none");
  EXPECT_FALSE(window.IsClockEnabled());
}
