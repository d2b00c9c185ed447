#pragma once

#include <string>
#include <string_view>

struct GameState;

// What a screen reader says of the board, in the fewest words that tell all.

struct Sentence {
  int square = -1;  // that it is about, if it is about one
  std::string text;

  friend bool operator==(const Sentence&, const Sentence&) = default;
};

// The square that a screen reader is led to: the cursor's, or without a cursor the knight's; -1
// when there is neither.
int SquareOfInterest(const GameState& game);

// The state of a square, such as "visited".
std::string_view DescribeSquare(const GameState& game, int square);

// The square and its state. Here and below, a square of -1 asks for the first square instead.
Sentence SquareSentence(const GameState& game, int square);

// Where the game stands: the knight's square, how many are visited, and what it reaches.
enum class Occasion { Move, NewGame, Arrival };
Sentence GameSentence(const GameState& game, Occasion occasion);

// Why a wish has changed nothing: a press on a square, an arrow key, a key that takes back.
Sentence RefusalSentence(const GameState& game, int square);
Sentence EdgeSentence(int square);
Sentence NothingToUndoSentence(int square);
