#pragma once

#include <memory>
#include <string_view>

#include <QAbstractButton>

#include "tests/ui/CommandTest.h"
#include "ui/windows/frmSolve.h"

// Positions to solve, as the names of their squares.
namespace Positions {

// Solved after 487 entries.
inline constexpr std::string_view Solvable =
    "A3 B1 D2 F1 H2 G4 H6 G8 E7 C8 A7 B5 C7 A8 B6 A4 B2 D1 F2 H1 G3 H5 G7 E8 F6 H7 F8 D7 B8 A6 B4 "
    "A2 "
    "C3 D5 E3 C2 A1 B3 C1 E2 G1 H3 G5 E4 C5";
inline constexpr int MovesOfSolvable = 45;
inline constexpr std::string_view TourOfSolvable =
    "A3 B1 D2 F1 H2 G4 H6 G8 E7 C8 A7 B5 C7 A8 B6 A4 B2 D1 F2 H1 G3 H5 G7 E8 F6 H7 F8 D7 B8 A6 B4 "
    "A2 "
    "C3 D5 E3 C2 A1 B3 C1 E2 G1 H3 G5 E4 C5 D3 E1 F3 H4 G2 F4 G6 H8 F7 E5 C4 D6 F5 D4 E6 D8 C6 A5 "
    "B7";

// Given up after 70 entries.
inline constexpr std::string_view Unsolvable =
    "H4 G2 E1 C2 A1 B3 C1 A2 B4 A6 B8 C6 A7 C8 E7 G8 F6 H7 G5 H3 G1 E2 F4 H5 G7 E8 C7 A8 B6 D5 E3 "
    "C4 "
    "A5 B7 D8 E6 F8 D7 C5 A4 B2 D3 E5 G4 H6 F5 D4 B5 C3 D1";
inline constexpr int MovesOfUnsolvable = 50;

}  // namespace Positions

// The Solve window over a live game, in a main window that records: no event runs but what a test
// lets happen when the search yields.
class SolveTest : public CommandTest {
 protected:
  // Plays these squares and opens the window over them.
  void Open(std::string_view squares, int refreshRate = 1000);

  // What the player does in the given yield of the search, the first being number 1.
  void InYield(int number, std::function<void()> action);
  // What the player does in the yield in which the search shows the tour that it has found.
  void WhenTheTourIsFound(std::function<void()> action);

  void Press(const char* button);
  std::string Text(const char* label) const;
  QAbstractButton& Button(const char* name) const;
  // The three values as "move/tested/square".
  std::string Values() const;
  // cmdStartStop and cmdBacktrack, a disabled one in brackets.
  std::string Buttons() const;

  std::unique_ptr<frmSolve> solve;
};
