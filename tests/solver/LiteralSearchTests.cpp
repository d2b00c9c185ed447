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
  void Compare(const std::vector<MoveRow>& moves, std::int16_t startingPosition,
               const std::vector<std::int16_t>& rates, int stopAtRedraw) {
    Prepare(tested_, moves, startingPosition, rates, stopAtRedraw);
    Prepare(literal_, moves, startingPosition, rates, stopAtRedraw);
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

  std::int16_t RandomStart() {
    return random_() % 2 == 0 ? StartOnStoredSquare : StartOnPlayersChoice;
  }

  std::mt19937 random_{20260101};

 private:
  struct Side {
    SolverDesk desk;
    std::vector<std::string> sights;  // at every redraw
  };

  static void Prepare(Side& side, const std::vector<MoveRow>& moves, std::int16_t startingPosition,
                      const std::vector<std::int16_t>& rates, int stopAtRedraw) {
    side.desk.BeginWith(moves, startingPosition);
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
    Compare(RandomWalk(random_, 40, 60), RandomStart(), RandomRates(1, 50), Never);
    if (HasFatalFailure()) return;
  }
}

TEST_F(LiteralSearchTest, UnwindsTheSameWayWhereverItIsStopped) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    const int stopAtRedraw = 1 + static_cast<int>(random_() % 12);
    Compare(RandomWalk(random_, 36, 60), RandomStart(), RandomRates(1, 9), stopAtRedraw);
    if (HasFatalFailure()) return;
  }
}

TEST_F(LiteralSearchTest, FollowsTheRefreshRateWhileItChanges) {
  for (int i = 0; i < Positions / 10; ++i) {
    SCOPED_TRACE(i);
    Compare(RandomWalk(random_, 36, 60), RandomStart(), RandomRates(7, 300), Never);
    if (HasFatalFailure()) return;
  }
}

TEST_F(LiteralSearchTest, GoesTheSameWayFarFromTheEnd) {
  for (int i = 0; i < Positions / 20; ++i) {
    SCOPED_TRACE(i);
    Compare(RandomWalk(random_, 1, 30), RandomStart(), RandomRates(3, 5000), 8);
    if (HasFatalFailure()) return;
  }
}

// Such a list is full while squares are still free.
TEST_F(LiteralSearchTest, GoesTheSameWayWhenAGameFileNamedSquaresTwice) {
  for (int i = 0; i < Positions / 10; ++i) {
    SCOPED_TRACE(i);
    std::vector<MoveRow> moves = RandomWalk(random_, 36, 60);
    const std::size_t twice = 1 + random_() % 4;
    moves.insert(moves.begin(), moves.begin(), moves.begin() + static_cast<std::ptrdiff_t>(twice));
    Compare(moves, StartOnStoredSquare, RandomRates(3, 300), 100);
    if (HasFatalFailure()) return;
  }
}
