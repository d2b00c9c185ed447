#include <algorithm>
#include <random>

#include "core/Keyboard.h"
#include "tests/support/GameTest.h"

namespace {

// A player without any plan: whatever is done, in whatever order, the game stays a game.
class RandomWalk : public GameTest, public testing::WithParamInterface<FirstSquare> {
 protected:
  static constexpr int Operations = 100'000;

  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }

  void DoAnything();
  void ClickALegalSquare();
  void ChooseNewOrRestart();
  void PressAnyKey();
  void DecideAtTheEnd();

  // What is wrong with the game, or nothing.
  std::string Fault() const;
  bool KnightStandsOnTheLastMove() const;
  bool MovesAreKnightsMoves() const;
  bool OnlyMovesMadeAreTaken() const;

 private:
  std::mt19937 engine_{1848};
};

void RandomWalk::DoAnything() {
  switch (Below(10)) {
    case 0:
      return game.pctGrid_Click(Below(70) - 3);
    case 1:
      return game.mnuEditUndo_Click();
    case 2:
      return game.mnuEditRedo_Click();
    case 3:
      return PressAnyKey();
    case 4:
      return game.pctGrid_MouseMove(Below(70) - 3, Below(2) - 1);
    case 5:
      return Below(10) == 0 ? ChooseNewOrRestart() : game.tmrTime_Timer();
    default:
      return ClickALegalSquare();
  }
}

void RandomWalk::ClickALegalSquare() {
  const Offset offset = KnightMoveOffsets[static_cast<std::size_t>(Below(8))];
  const int x = state.KnightX + offset.dx;
  const int y = state.KnightY + offset.dy;
  if (IsSquare(x, y)) game.pctGrid_Click(SquareIndex(x, y));
}

void RandomWalk::ChooseNewOrRestart() {
  window.answers = {Below(2) == 0 ? PlayerSays::Yes : PlayerSays::No};
  if (Below(2) == 0) {
    game.mnuFileNew_Click();
  } else {
    game.mnuFileRestart_Click();
  }
  window.answers.clear();  // a game that is not in progress asks nothing
}

void RandomWalk::PressAnyKey() {
  constexpr int keys[] = {8,  12, 13, 32, 33, 34,  35,  36,  37,
                          38, 39, 40, 65, 98, 100, 101, 102, 104};
  game.pctGrid_KeyDown(keys[Below(static_cast<int>(std::size(keys)))]);
}

void RandomWalk::DecideAtTheEnd() {
  switch (Below(3)) {
    case 0:
      return game.mnuEditUndo_Click();
    case 1:
      return game.mnuFileNew_Click();
    default:
      return;
  }
}

bool RandomWalk::KnightStandsOnTheLastMove() const {
  if (state.MoveCount == 0) return true;
  const MoveRow& last = state.MoveList[static_cast<std::size_t>(state.MoveCount - 1)];
  return last == MoveRow{state.KnightX, state.KnightY};
}

bool RandomWalk::MovesAreKnightsMoves() const {
  for (std::size_t i = 1; i < static_cast<std::size_t>(state.MoveCount); ++i) {
    const MoveRow& from = state.MoveList[i - 1];
    const MoveRow& to = state.MoveList[i];
    if (!IsKnightsMove(from.x, from.y, to.x, to.y)) return false;
  }
  return true;
}

// The spare column and row are in the count: nothing may be taken there.
bool RandomWalk::OnlyMovesMadeAreTaken() const {
  const auto taken = [this](const MoveRow& row) {
    return state.Cell(row.x, row.y) == GameState::Visited;
  };
  const auto moves = MovesMade(state);
  return std::all_of(moves.begin(), moves.end(), taken) && SquaresTaken() == state.MoveCount;
}

std::string RandomWalk::Fault() const {
  const bool cursorIsSquare = IsSquare(state.CursorX, state.CursorY);
  const bool noCursor = state.CursorX == -1 && state.CursorY == -1;
  const bool mayRedo = !MovesToRedo(state).empty() || state.MoveCount == SquareCount;

  if (!KnightStandsOnTheLastMove()) return "the knight is not on the last square taken";
  if (!MovesAreKnightsMoves()) return "a move is no knight's move";
  if (!OnlyMovesMadeAreTaken()) return "the squares taken are not the moves made";
  if (state.MoveList.back() != MoveRow{0, 0}) return "the last row was written";
  if (!cursorIsSquare && !noCursor) return "the cursor is beside the board";
  if (state.FirstMoveMade != (state.MoveCount > 0)) return "the first move is not what it seems";
  if (IsOn(MenuEntry::mnuEditRedo) && !mayRedo) return "Redo has nothing to redo";
  if (!IsOn(MenuEntry::mnuEditRedo) && !MovesToRedo(state).empty()) return "Redo is disabled";
  if (game.CheckIfGameOver(state.KnightX, state.KnightY) && window.IsClockEnabled()) {
    return "the clock runs after the end";
  }
  if (state.ApplyingMoves || window.IsWorking()) return "work has not ended";
  return "";
}

}  // namespace

TEST_P(RandomWalk, NeverBreaksTheGame) {
  Begin(GetParam());
  window.onEndGame = [this](const GameOverReport&) { DecideAtTheEnd(); };
  for (int i = 0; i < Operations; ++i) {
    DoAnything();
    ASSERT_EQ(Fault(), "") << "after operation " << i << " with " << state.MoveCount << " moves";
    window.log.clear();
  }
}

INSTANTIATE_TEST_SUITE_P(FromEveryStart, RandomWalk,
                         testing::Values(StartOnStoredSquare, StartOnPlayersChoice,
                                         StartOnRandomSquare));
