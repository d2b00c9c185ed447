#include <tuple>

#include "tests/support/GameTest.h"

class UnseenMoves : public GameTest {
 protected:
  // Six squares of a tour, with the program about to make moves.
  void BeginWork(FirstSquare start) {
    Begin(start);
    PlayTour(game, 6);
    state.ApplyingMoves = true;
  }

  void MoveSeen(std::string_view square) {
    game.ValidMove(SquareNamed(square).x, SquareNamed(square).y);
  }
  void MoveUnseen(std::string_view square) {
    game.MoveUnseen(SquareNamed(square).x, SquareNamed(square).y);
  }

  auto WhatIsLeft() const {
    std::vector<bool> menu;
    for (int i = 0; i < MenuEntryCount; ++i) menu.push_back(IsOn(static_cast<MenuEntry>(i)));
    return std::tuple(state.Board, MovesMade(state), Knight(), Cursor(), menu);
  }
};

TEST_F(UnseenMoves, LeaveNothingElseBehindTheLastUndoAndMoveThanSeenOnesDo) {
  for (const FirstSquare start : {StartOnStoredSquare, StartOnPlayersChoice}) {
    BeginWork(start);
    TakeBack(5);
    for (const auto* square : {"B6", "D7", "F8"}) MoveSeen(square);
    const auto seen = WhatIsLeft();

    BeginWork(start);
    for (int i = 0; i < 4; ++i) game.TakeBackUnseen();
    TakeBack();
    for (const auto* square : {"B6", "D7"}) MoveUnseen(square);
    MoveSeen("F8");
    EXPECT_EQ(WhatIsLeft(), seen);
  }
}

TEST_F(UnseenMoves, AskNothingOfTheWindow) {
  BeginWork(StartOnStoredSquare);
  window.log.clear();
  game.TakeBackUnseen();
  MoveUnseen("F6");
  EXPECT_EQ(TakeLog(), Steps{});
}
