#include <array>
#include <random>

#include "tests/ui/ReplayTest.h"

namespace {

constexpr int Actions = 50'000;
constexpr int ActionsOfSession = 200;
constexpr std::array<int, 6> GameLengths{1, 2, 3, 9, 20, 40};

// A player who presses, drags and closes at random, also while the knight is walking.
class ReplayStorm : public ReplayTest {
 protected:
  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

  // Sometimes there are moves to redo beyond the end of the replay.
  int BeginAnyGame() {
    state = GameState{};
    Begin(static_cast<FirstSquare>(Below(2)));
    PlayTour(game, GameLengths[static_cast<std::size_t>(Below(6))]);
    for (int undos = Below(3); undos > 0 && state.MoveCount > 2; --undos) game.mnuEditUndo_Click();
    return state.MoveCount;
  }

  void Act(frmReplay& replay) {
    if (Below(200) == 0) {
      replay.cmdClose_Click();
    } else {
      PressAnything(replay, random_);
    }
  }

  // In the middle of a walk: nothing may move the knight but the walk itself.
  void ActOnTheWay(frmReplay& replay) {
    if (Below(4) != 0) return;
    ++actions_;
    const int before = state.MoveCount;
    Act(replay);
    EXPECT_EQ(state.MoveCount, before);
  }

  void RunSession(frmReplay& replay, int total) {
    window.onDoEvents = [&] { ActOnTheWay(replay); };
    for (int i = 0; i < ActionsOfSession && replay.isVisible(); ++i) {
      ++actions_;
      Act(replay);
      window.log.clear();
      ASSERT_GE(state.MoveCount, 1);
      ASSERT_LE(state.MoveCount, total);
      if (!replay.isVisible()) break;
      ASSERT_TRUE(Agrees(replay)) << "after " << actions_ << " actions";
      ASSERT_EQ(Shown(replay).IsOn("cmdAdvancePause"), Shown(replay).IsOn("cmdFinish"));
    }
    window.onDoEvents = nullptr;
  }

  int actions_ = 0;

 private:
  std::mt19937 random_{20260117};
};

}  // namespace

TEST_F(ReplayStorm, LeavesPositionBoardAndListInAgreement) {
  while (actions_ < Actions && !HasFatalFailure()) {
    const int total = BeginAnyGame();
    const auto rows = state.MoveList;
    window.answers = {Below(2) == 0 ? PlayerSays::Yes : PlayerSays::No};
    Watch([&](frmReplay& replay) {
      RunSession(replay, total);
      window.answers.clear();
    });
    ASSERT_EQ(state.MoveList, rows);
    ASSERT_FALSE(state.ApplyingMoves);
    ASSERT_TRUE(window.IsClockEnabled());
  }
}
