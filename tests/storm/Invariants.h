#pragma once

#include <cstdint>
#include <optional>
#include <string>

class frmGame;
struct GameState;

// Tells what is wrong with the game in a window; empty when all is as it has to be.
class Inspector {
 public:
  // At any moment, also in the middle of a search or a replay. idle: no dialog is open and nothing
  // is under way, so menus, clock and flags are at rest.
  std::string ComplaintAbout(frmGame& window, bool idle);

 private:
  bool NamesSquareTwice(const GameState& state);

  // The game from a file that names a square twice; undoing the second visit frees the square.
  std::optional<std::uint32_t> doubtfulGame_;
};

// What is wrong with the caption right after a move or a change of the options.
std::string ComplaintAboutCaption(frmGame& window);
