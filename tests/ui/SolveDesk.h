#pragma once

#include <functional>
#include <string_view>

#include <QPushButton>
#include <QTimer>

#include "tests/ui/Desk.h"
#include "ui/windows/frmSolve.h"

// The Solve window over the real main window.
class SolveDesk : public Desk {
 protected:
  // Plays these squares; an empty board is left at the first square, where a search never ends.
  void OpenGame(std::string_view squares, int refreshRate = 1000);

  // Chooses Solve and does this in the window that opens. It is closed afterwards if it is still
  // open then, and nothing is backtracked.
  using Visit = std::function<void(frmSolve& solve)>;
  void Solve(const Visit& visit);

  // Presses Start; while the search pauses for events, what happens is done again and again, with
  // the number of the pause, the first being 1. Returns when the search is over.
  void Search(frmSolve& solve, const std::function<void(int pause)>& happens);

  static QPushButton& StartStop(frmSolve& solve) {
    return Child<QPushButton>(solve, "cmdStartStop");
  }
  static bool IsSearching(frmSolve& solve) { return StartStop(solve).text() == "&Stop"; }
};

// Fails where two games differ for the player: moves, squares taken, knight.
void ExpectSameGame(const GameState& one, const GameState& other);
