#include <random>

#include "tests/solver/LiteralSearch.h"
#include "tests/solver/RandomPositions.h"
#include "tests/solver/SolverDesk.h"

namespace {

constexpr int Positions = 1000;
constexpr int Never = 0;

// The same position twice: the solver works on one, the literal search on the other. Both change
// the refresh rate and stop at the same redraws.
class LiteralSearchTest : public testing::Test {
 protected:
  void Compare(const SolverPosition& position, const std::vector<std::int16_t>& rates,
               int stopAtRedraw) {
    Prepare(tested_, position, rates, stopAtRedraw);
    Prepare(literal_, position, rates, stopAtRedraw);
    const bool solved = tested_.desk.Solve();
    ASSERT_EQ(solved, literal_.desk.Solve(SolveLiterally));
    ASSERT_EQ(tested_.sights, literal_.sights);
    ASSERT_EQ(tested_.desk.redraws, literal_.desk.redraws);
    ASSERT_EQ(tested_.desk.solver.PositionsTested, literal_.desk.solver.PositionsTested);
    ASSERT_EQ(Sight(tested_.desk), Sight(literal_.desk));
    // Which moves could be redone is never seen: the Solve command drops them.
    tested_.desk.game.ClearRedo();
    literal_.desk.game.ClearRedo();
    ASSERT_EQ(tested_.desk.state.MoveList, literal_.desk.state.MoveList);
  }

  // All rates in turn.
  std::vector<std::int16_t> RandomRates(std::size_t count, unsigned highest) {
    std::vector<std::int16_t> rates(count);
    for (std::int16_t& rate : rates) {
      rate = static_cast<std::int16_t>(1 + random_() % highest);
    }
    return rates;
  }

  // At 0 every entry is shown.
  std::vector<std::int16_t> LowRate() { return {static_cast<std::int16_t>(random_() % 3)}; }

  FirstSquare RandomStart() {
    return random_() % 2 == 0 ? StartOnStoredSquare : StartOnPlayersChoice;
  }

  int UpTo(unsigned highest) { return 1 + static_cast<int>(random_() % highest); }

  std::mt19937 random_{20260101};

 private:
  struct Side {
    SolverDesk desk;
    std::vector<std::string> sights;  // at every redraw
  };

  static void Prepare(Side& side, const SolverPosition& position,
                      const std::vector<std::int16_t>& rates, int stopAtRedraw) {
    side.desk.BeginWith(position);
    side.sights.clear();
    side.desk.refreshRate = rates.front();
    side.desk.onRedraw = [&side, rates, stopAtRedraw] {
      const std::size_t redraws = side.desk.redraws.size();
      side.sights.push_back(Sight(side.desk));
      side.desk.refreshRate = rates[redraws % rates.size()];
      if (static_cast<int>(redraws) == stopAtRedraw) side.desk.solver.StopSolving = true;
      side.desk.ClearLog();
    };
  }

  Side tested_;
  Side literal_;
};

}  // namespace

TEST_F(LiteralSearchTest, GoesTheSameWayFromAThousandPositions) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    Compare({RandomWalk(random_, 40, 60), RandomStart()}, RandomRates(1, 50), Never);
    if (HasFatalFailure()) return;
  }
}

TEST_F(LiteralSearchTest, UnwindsTheSameWayWhereverItIsStopped) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    Compare({RandomWalk(random_, 36, 60), RandomStart()}, RandomRates(1, 9), UpTo(12));
    if (HasFatalFailure()) return;
  }
}

TEST_F(LiteralSearchTest, GoesTheSameWayWhenNearlyEveryEntryIsShown) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    Compare({RandomWalk(random_, 1, 62), RandomStart()}, LowRate(), UpTo(60));
    if (HasFatalFailure()) return;
  }
}

TEST_F(LiteralSearchTest, FollowsTheRefreshRateWhileItChanges) {
  for (int i = 0; i < Positions / 10; ++i) {
    SCOPED_TRACE(i);
    Compare({RandomWalk(random_, 36, 60), RandomStart()}, RandomRates(7, 300), Never);
    if (HasFatalFailure()) return;
  }
}

TEST_F(LiteralSearchTest, GoesTheSameWayFarFromTheEnd) {
  for (int i = 0; i < Positions / 20; ++i) {
    SCOPED_TRACE(i);
    Compare({RandomWalk(random_, 1, 30), RandomStart()}, RandomRates(3, 5000), 8);
    if (HasFatalFailure()) return;
  }
}

// The list of such a game is full while squares are still free.
TEST_F(LiteralSearchTest, GoesTheSameWayWhenAGameFileNamedSquaresTwice) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    Compare({FileWithSquaresNamedTwice(random_), RandomStart()}, RandomRates(3, 40), UpTo(30));
    if (HasFatalFailure()) return;
  }
}

// What was named twice is free as soon as it was undone once.
TEST_F(LiteralSearchTest, GoesTheSameWayWhenSquaresNamedTwiceWereUndone) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    Compare({FileWithSquaresNamedTwice(random_), RandomStart(), UpTo(6)}, LowRate(), UpTo(60));
    if (HasFatalFailure()) return;
  }
}

// The knight then stands on a free square.
TEST_F(LiteralSearchTest, GoesTheSameWayWhenTheLastSquareWasNamedTwiceAndUndoneOnce) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    std::vector<MoveRow> moves = RandomWalk(random_, 50, 62);
    moves.push_back(moves.back());
    Compare({moves, RandomStart(), 1}, RandomRates(3, 20), UpTo(100));
    if (HasFatalFailure()) return;
  }
}
