#pragma once

#include <array>
#include <cstdint>

#include "core/Square.h"

struct MoveRow {
  std::int16_t x = 0;
  std::int16_t y = 0;

  friend bool operator==(const MoveRow&, const MoveRow&) = default;
};

inline constexpr MoveRow EmptyMove{-1, -1};

// A game of so many squares, more than half of the board, is a good one.
inline constexpr int GoodGame = 33;

// How a game begins. The numbers are those of the settings file; any other counts as random.
enum class FirstSquare : std::int16_t { Stored = 0, PlayersChoice = 1, Random = 2 };

// What the player chooses once for all games; the settings own it, the game reads it.
struct GameOptions {
  bool ShowScore = true;
  bool ShowTime = true;
  FirstSquare StartingPosition = FirstSquare::Stored;
  std::int16_t StartingX = 0;
  std::int16_t StartingY = 0;
};

// Every field of the one live game.
//
// The cells of the moves below MoveCount are visited, and no others, unless a file named one twice
// and Undo took it back once. The last of these moves is where the knight stands.
struct GameState {
  static constexpr std::int16_t Unvisited = 0;
  static constexpr std::int16_t Visited = -1;
  static constexpr int BoardStride = 9;

  // Column 8 and row 8 exist but are never used as squares.
  std::array<std::int16_t, 81> Board{};
  std::int16_t KnightX = 0;
  std::int16_t KnightY = 0;
  std::int16_t CursorX = -1;  // -1 in both: no cursor
  std::int16_t CursorY = -1;
  bool FirstMoveMade = false;
  // The program itself is making moves: the clock does not start and the game does not end.
  bool ApplyingMoves = false;
  // StartingPosition when this game began; a game from a file counts as begun on a stored square.
  FirstSquare GameStartingPosition = FirstSquare::Stored;
  std::int32_t ElapsedHalfSeconds = 0;

  std::int16_t MoveCount = 0;
  // Rows 0..MoveCount-1 are the moves made, the rows after them the moves that can be redone, up to
  // the first empty row. Row 64 is never written and stays (0, 0).
  std::array<MoveRow, SquareCount + 1> MoveList{};
  bool NoScoreGame = false;
  // The search is moving the knight without showing it: nothing is drawn, the caption rests.
  bool SolverRunning = false;

  // Raised by every new game and every opened file, so that whoever yields can see that the game
  // which it was working on is gone.
  std::uint32_t GameSerial = 0;

  static constexpr std::size_t CellIndex(int x, int y) {
    const int index = x + y * BoardStride;
    return static_cast<std::size_t>(index);
  }
  std::int16_t& Cell(int x, int y) { return Board[CellIndex(x, y)]; }
  std::int16_t Cell(int x, int y) const { return Board[CellIndex(x, y)]; }
};

// The program makes moves by itself for the length of a scope.
class ApplyingMovesScope {
 public:
  explicit ApplyingMovesScope(GameState& state) : state_(state) { state_.ApplyingMoves = true; }
  ~ApplyingMovesScope() { state_.ApplyingMoves = false; }
  ApplyingMovesScope(const ApplyingMovesScope&) = delete;
  ApplyingMovesScope& operator=(const ApplyingMovesScope&) = delete;

 private:
  GameState& state_;
};
