#include <random>

#include "solver/TourMoves.h"
#include "tests/solver/SolverTest.h"

namespace {

constexpr int Positions = 1000;

// The search as it can be read: every trial move is made and taken back on the live game.
class LiteralSearch {
 public:
  LiteralSearch(Game& game, GameState& state, SolverState& solver, int refreshRate)
      : game_(game), state_(state), solver_(solver), refreshRate_(refreshRate) {}

  std::vector<std::string> redraws;
  int stopAtRedraw = 0;  // 0: never

  bool Solve() {
    ++solver_.PositionsTested;
    const bool over = game_.CheckIfGameOver(state_.KnightX, state_.KnightY);
    if (over && state_.MoveCount == SquareCount) return true;
    if (solver_.StopSolving) return false;
    if (++solver_.SolveRefreshCounter > refreshRate_) Redraw();
    return TryMoves();
  }

 private:
  void Redraw() {
    solver_.SolveRefreshCounter = 0;
    redraws.push_back(ProgressText(state_, solver_));
    if (static_cast<int>(redraws.size()) == stopAtRedraw) solver_.StopSolving = true;
  }

  bool TryMoves() {
    for (const Offset offset : TourMoveOffsets) {
      const int x = state_.KnightX + offset.dx;
      const int y = state_.KnightY + offset.dy;
      if (!IsSquare(x, y) || state_.Cell(x, y) != GameState::Unvisited) continue;
      game_.ValidMove(x, y);
      if (Solve()) return true;
      game_.mnuEditUndo_Click();
    }
    return false;
  }

  Game& game_;
  GameState& state_;
  SolverState& solver_;
  int refreshRate_;
};

// A second game beside the tested one, on which the literal search runs.
class LiteralGame : public SolverTest {
 protected:
  // A random walk of at least 34 squares: what is left is searched in a moment.
  std::vector<MoveRow> RandomPosition() {
    for (;;) {
      std::vector<MoveRow> moves = RandomWalk(34 + static_cast<int>(random_() % 26));
      if (moves.size() >= 34) return moves;
    }
  }

  void BeginLiteral(const std::vector<MoveRow>& moves) {
    literalOptions_.StartingX = moves.front().x;
    literalOptions_.StartingY = moves.front().y;
    literalGame.Form_Load("");
    literalState.ApplyingMoves = true;
    for (std::size_t i = 1; i < moves.size(); ++i) literalGame.ValidMove(moves[i].x, moves[i].y);
    literalState.SolverRunning = true;
    literalSolver = SolverState();
  }

  void ExpectSameGame() {
    literalState.SolverRunning = false;
    EXPECT_EQ(state.Board, literalState.Board);
    EXPECT_EQ(state.MoveCount, literalState.MoveCount);
    EXPECT_EQ(state.MoveList, literalState.MoveList);
    EXPECT_EQ(state.KnightX, literalState.KnightX);
    EXPECT_EQ(state.KnightY, literalState.KnightY);
    EXPECT_EQ(state.CursorX, literalState.CursorX);
    EXPECT_EQ(state.CursorY, literalState.CursorY);
    for (int entry = 0; entry < MenuEntryCount; ++entry) {
      EXPECT_EQ(window.IsMenuEnabled(static_cast<MenuEntry>(entry)),
                literalWindow.IsMenuEnabled(static_cast<MenuEntry>(entry)))
          << entry;
    }
  }

  GameState literalState;
  RecordingWindow literalWindow;
  SolverState literalSolver;
  std::mt19937 random_{20260101};

 private:
  std::vector<MoveRow> RandomWalk(int length) {
    GameState walk;
    std::vector<MoveRow> moves;
    int x = static_cast<int>(random_() % 8);
    int y = static_cast<int>(random_() % 8);
    for (int tries = 0; static_cast<int>(moves.size()) < length && tries < 400; ++tries) {
      if (moves.empty()) {
        moves.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)});
        walk.Cell(x, y) = GameState::Visited;
      }
      const Offset offset = KnightMoveOffsets[random_() % 8];
      if (!IsSquare(x + offset.dx, y + offset.dy)) continue;
      if (walk.Cell(x + offset.dx, y + offset.dy) == GameState::Visited) continue;
      x += offset.dx;
      y += offset.dy;
      walk.Cell(x, y) = GameState::Visited;
      moves.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)});
    }
    return moves;
  }

  GameOptions literalOptions_;

 protected:
  Game literalGame{literalState, literalOptions_, literalWindow};
};

}  // namespace

TEST_F(LiteralGame, GoesTheSameWayFromAThousandPositions) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    const std::vector<MoveRow> moves = RandomPosition();
    refreshRate = static_cast<std::int16_t>(1 + random_() % 50);
    BeginWith(moves);
    const bool solved = Solve();

    BeginLiteral(moves);
    LiteralSearch literal(literalGame, literalState, literalSolver, refreshRate);
    ASSERT_EQ(literal.Solve(), solved);
    if (solved) redraws.pop_back();
    ASSERT_EQ(redraws, literal.redraws);
    ASSERT_EQ(solver.PositionsTested, literalSolver.PositionsTested);
    ExpectSameGame();
    literalWindow.log.clear();
  }
}

TEST_F(LiteralGame, UnwindsTheSameWayWhereverItIsStopped) {
  for (int i = 0; i < Positions; ++i) {
    SCOPED_TRACE(i);
    const std::vector<MoveRow> moves = RandomPosition();
    refreshRate = static_cast<std::int16_t>(1 + random_() % 9);
    const int stopAt = 1 + static_cast<int>(random_() % 12);
    BeginWith(moves);
    onRedraw = [&] {
      if (static_cast<int>(redraws.size()) == stopAt) solver.StopSolving = true;
    };
    const bool solved = Solve();

    BeginLiteral(moves);
    LiteralSearch literal(literalGame, literalState, literalSolver, refreshRate);
    literal.stopAtRedraw = stopAt;
    ASSERT_EQ(literal.Solve(), solved);
    ASSERT_EQ(solver.PositionsTested, literalSolver.PositionsTested);
    ExpectSameGame();
    literalWindow.log.clear();
  }
}
