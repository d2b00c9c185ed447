#include "tests/ui/SolveDesk.h"

#include "tests/support/Games.h"

void SolveDesk::OpenGame(std::string_view squares, int refreshRate) {
  Open(QString("[Settings]\r\nShow Solve Warnings=0\r\nSolve Refresh=%1\r\n"
               "[Position]\r\nStarting Position=%2\r\n")
           .arg(refreshRate)
           .arg(squares.empty() ? 0 : 1));
  if (!squares.empty()) PlaySquares(Window().Context().game, squares);
}

void SolveDesk::Solve(const Visit& visit) {
  WhenNextModalOpens([this, visit](QWidget& modal) {
    auto& solve = dynamic_cast<frmSolve&>(modal);
    visit(solve);
    if (!solve.isVisible()) return;
    if (Child<QPushButton>(solve, "cmdBacktrack").isEnabled()) {
      Answer("Backtrack?", "Do you want to backtrack before closing?", QMessageBox::No);
    }
    solve.cmdClose_Click();
  });
  Choose("mnuFileSolve");
  EXPECT_TRUE(AllVisitsMade());
}

void SolveDesk::Search(frmSolve& solve, const std::function<void(int pause)>& happens) {
  QTimer pauses;
  int pause = 0;
  QObject::connect(&pauses, &QTimer::timeout, [&] { happens(++pause); });
  pauses.start(0);
  StartStop(solve).click();
}

void ExpectSameGame(const GameState& one, const GameState& other) {
  EXPECT_EQ(MovesMade(one), MovesMade(other));
  EXPECT_EQ(one.Board, other.Board);
  EXPECT_EQ(one.KnightX, other.KnightX);
  EXPECT_EQ(one.KnightY, other.KnightY);
}
