#include "ui/board/BoardWords.h"

#include "core/GameState.h"

namespace {

constexpr const char* Reachable = "can be reached";
constexpr const char* Free = "free";
constexpr const char* ChooseFirst = "choose the first square";

Sentence About(int square, std::string_view description) {
  const std::string name = SquareName(ColumnOf(square), RowOf(square));
  return {square, name + ", " + std::string(description)};
}

Sentence Plain(const std::string& text) {
  return {-1, text};
}

std::string BeginningOf(Occasion occasion) {
  switch (occasion) {
    case Occasion::Arrival:
      return "Chessboard, ";
    case Occasion::NewGame:
      return "new game, ";
    case Occasion::Move:
      break;
  }
  return "";
}

// In the order of their names, which is easier to keep in mind than any other.
std::string ReachedSquares(const GameState& game) {
  std::string squares;
  for (int x = 0; x < BoardSide; ++x) {
    for (int y = BoardSide - 1; y >= 0; --y) {
      if (DescribeSquare(game, SquareIndex(x, y)) != Reachable) continue;
      squares += (squares.empty() ? "" : ", ") + SquareName(x, y);
    }
  }
  return squares;
}

std::string Standing(const GameState& game) {
  const std::string visited = std::to_string(game.MoveCount) + " visited, ";
  if (game.MoveCount == SquareCount) return visited + "the tour is complete";
  const std::string reached = ReachedSquares(game);
  return visited + (reached.empty() ? "no square in reach" : "reaches " + reached);
}

}  // namespace

int SquareOfInterest(const GameState& game) {
  if (IsSquare(game.CursorX, game.CursorY)) return SquareIndex(game.CursorX, game.CursorY);
  return game.FirstMoveMade ? SquareIndex(game.KnightX, game.KnightY) : -1;
}

std::string_view DescribeSquare(const GameState& game, int square) {
  const int x = ColumnOf(square);
  const int y = RowOf(square);
  if (!game.FirstMoveMade) return Reachable;
  if (x == game.KnightX && y == game.KnightY) return "knight";
  if (game.Cell(x, y) == GameState::Visited) return "visited";
  return IsKnightsMove(game.KnightX, game.KnightY, x, y) ? Reachable : Free;
}

Sentence SquareSentence(const GameState& game, int square) {
  return square == -1 ? Plain(ChooseFirst) : About(square, DescribeSquare(game, square));
}

Sentence GameSentence(const GameState& game, Occasion occasion) {
  const std::string beginning = BeginningOf(occasion);
  if (!game.FirstMoveMade) return Plain(beginning + ChooseFirst);
  const std::string who = occasion == Occasion::Move ? "" : "knight, ";
  const Sentence rest = About(SquareIndex(game.KnightX, game.KnightY), who + Standing(game));
  return {rest.square, beginning + rest.text};
}

Sentence RefusalSentence(const GameState& game, int square) {
  if (square == -1) return Plain(ChooseFirst);
  const std::string_view state = DescribeSquare(game, square);
  const std::string reason = state == Free ? "" : std::string(state) + ", ";
  return About(square, reason + "cannot be reached");
}

Sentence EdgeSentence(int square) {
  return square == -1 ? Plain(ChooseFirst) : About(square, "edge of the board");
}

Sentence NothingToUndoSentence(int square) {
  return square == -1 ? Plain(ChooseFirst) : About(square, "nothing to undo");
}
