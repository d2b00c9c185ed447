#include "tests/support/Games.h"

#include <ostream>

MoveRow SquareNamed(std::string_view name) {
  return {static_cast<std::int16_t>(name[0] - 'A'), static_cast<std::int16_t>('8' - name[1])};
}

std::vector<MoveRow> SquaresNamed(std::string_view names) {
  std::vector<MoveRow> squares;
  for (std::size_t i = 0; i + 1 < names.size(); i += 3)
    squares.push_back(SquareNamed(names.substr(i)));
  return squares;
}

int IndexOf(std::string_view name) {
  const MoveRow square = SquareNamed(name);
  return SquareIndex(square.x, square.y);
}

void PlaySquares(Game& game, std::string_view names) {
  for (const MoveRow& square : SquaresNamed(names))
    game.pctGrid_Click(SquareIndex(square.x, square.y));
}

void PlayTour(Game& game, int moves) {
  PlaySquares(game, Games::CompleteTour.substr(0, static_cast<std::size_t>(moves) * 3));
}

std::vector<MoveRow> MovesMade(const GameState& state) {
  return {state.MoveList.begin(), state.MoveList.begin() + state.MoveCount};
}

std::vector<MoveRow> MovesToRedo(const GameState& state) {
  std::vector<MoveRow> rows;
  for (std::size_t i = static_cast<std::size_t>(state.MoveCount); i < SquareCount; ++i) {
    if (state.MoveList[i].x == EmptyMove.x) break;
    rows.push_back(state.MoveList[i]);
  }
  return rows;
}

void PrintTo(const MoveRow& row, std::ostream* out) {
  if (IsSquare(row.x, row.y)) {
    *out << SquareName(row.x, row.y);
  } else {
    *out << "(" << row.x << ", " << row.y << ")";
  }
}
