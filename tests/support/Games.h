#pragma once

#include <iosfwd>
#include <string_view>
#include <vector>

#include "core/Game.h"

// Games to play, each from the square A8, as the names of their squares.
namespace Games {

// Visits all 64 squares.
inline constexpr std::string_view CompleteTour =
    "A8 C7 B5 D6 E8 G7 H5 F6 E4 G3 H1 F2 D1 B2 C4 A3 C2 A1 B3 D4 E2 G1 H3 F4 E6 G5 H7 F8 D7 B8 A6 "
    "C5 "
    "A4 C3 B1 D2 F1 H2 G4 E3 F5 H6 G8 E7 D5 B6 C8 A7 C6 A5 B7 D8 F7 H8 G6 E5 F3 H4 G2 E1 D3 B4 A2 "
    "C1";

// These get stuck on the last of their squares.
inline constexpr std::string_view DeadEndAfter20 =
    "A8 C7 D5 F6 H7 F8 D7 E5 G4 E3 C4 A5 B3 D2 F1 H2 F3 E1 C2 A1";
inline constexpr std::string_view DeadEndAfter32 =
    "A8 C7 B5 D6 E4 D2 B1 A3 C2 D4 C6 B4 A2 C1 D3 E5 C4 A5 B7 C5 A6 B8 D7 F8 G6 H4 F5 E3 D5 E7 C8 "
    "A7";
inline constexpr std::string_view DeadEndAfter33 =
    "A8 C7 A6 B8 C6 B4 D5 F4 G6 E7 C8 D6 B5 C3 D1 F2 E4 F6 H5 G7 E6 F8 H7 G5 F7 D8 B7 C5 B3 D4 E2 "
    "G3 "
    "H1";

}  // namespace Games

// The square of a name such as "A8".
MoveRow SquareNamed(std::string_view name);
// The squares of names separated by one blank each.
std::vector<MoveRow> SquaresNamed(std::string_view names);
// The index at which the board shows a square.
int IndexOf(std::string_view name);

// Clicks on one square after the other. A square that is taken already is passed over, so a game
// can begin on the square that was placed automatically.
void PlaySquares(Game& game, std::string_view names);
// The first moves of the complete tour; the first square counts.
void PlayTour(Game& game, int moves);

// The rows of MoveList that are moves made.
std::vector<MoveRow> MovesMade(const GameState& state);
// The rows that can be made again.
std::vector<MoveRow> MovesToRedo(const GameState& state);

// How a failed test shows a row.
void PrintTo(const MoveRow& row, std::ostream* out);
