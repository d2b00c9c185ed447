#pragma once

#include <array>
#include <string_view>

#include <QAccessible>

#include "core/Square.h"

class BoardView;

// Tells screen readers what happens on the board: which squares are described anew, and which one
// they are led to. Without a screen reader nothing is computed, and while the board has not got
// the keyboard nothing is told; it is told when the keyboard comes back.
class BoardAnnouncer {
 public:
  explicit BoardAnnouncer(BoardView& view) : view_(view) {}

  void Announce();
  // Leads to the square of interest though it is the same as before.
  void AnnounceAgain();

 private:
  void Send(QAccessible::Event type, int square);

  BoardView& view_;
  std::array<std::string_view, SquareCount> descriptions_{};
  int square_ = -1;
};
