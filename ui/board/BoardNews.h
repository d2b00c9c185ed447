#pragma once

#include <cstdint>
#include <optional>

#include "ui/board/BoardWords.h"

// Decides what a screen reader hears of the board: in one sentence, what has changed since the last
// one, or else why nothing has.
class BoardNews {
 public:
  // What the player has just asked for; it is answered even when nothing comes of it.
  enum class Wish { Nothing, Press, Step, TakeBack };

  // The game outlives the news.
  explicit BoardNews(const GameState& game) : game_(game) {}

  // Until the wish is Nothing again. square: the pressed one, -1 for that of the cursor.
  void Expect(Wish wish, int square = -1);
  // The keyboard has come to the board, so that the square is said though it is the same.
  void ComeBack() { cameBack_ = true; }
  // Null when there is nothing to say. What is taken counts as said.
  std::optional<Sentence> Take();

 private:
  struct Standing {
    // Two differ as games when anything but the square does.
    bool IsGameOf(const Standing& other) const {
      return gameSerial == other.gameSerial && moveCount == other.moveCount &&
             canRedo == other.canRedo;
    }

    std::uint32_t gameSerial = 0;
    int moveCount = 0;
    bool canRedo = false;
    int square = -1;

    friend bool operator==(const Standing&, const Standing&) = default;
  };

  std::optional<Sentence> NewsOf(const Standing& now) const;
  Sentence NewsOfGame(const Standing& now) const;
  std::optional<Sentence> Answer(int square) const;

  const GameState& game_;
  Wish wish_ = Wish::Nothing;
  int pressed_ = -1;
  bool cameBack_ = false;
  std::optional<Standing> told_;
};
