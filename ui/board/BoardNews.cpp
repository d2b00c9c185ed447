#include "ui/board/BoardNews.h"

#include "core/GameState.h"

void BoardNews::Expect(Wish wish, int square) {
  wish_ = wish;
  pressed_ = square;
}

std::optional<Sentence> BoardNews::Take() {
  const bool canRedo = game_.MoveList[static_cast<std::size_t>(game_.MoveCount)] != EmptyMove;
  const Standing now{game_.GameSerial, game_.MoveCount, canRedo, SquareOfInterest(game_)};
  std::optional<Sentence> news = NewsOf(now);
  told_ = now;
  cameBack_ = false;
  return news;
}

std::optional<Sentence> BoardNews::NewsOf(const Standing& now) const {
  if (!told_) return GameSentence(game_, Occasion::Arrival);
  if (!now.IsGameOf(*told_)) return NewsOfGame(now);
  if (now != told_ || cameBack_) return SquareSentence(game_, now.square);
  return Answer(now.square);
}

// A game that has gone back to its beginning with nothing to redo has begun anew.
Sentence BoardNews::NewsOfGame(const Standing& now) const {
  const bool isSameGame = now.gameSerial == told_->gameSerial;
  const bool isAtBeginning = now.moveCount <= 1 && !now.canRedo;
  const bool wentBack = now.moveCount < told_->moveCount;
  if (isAtBeginning && (wentBack || !isSameGame)) return GameSentence(game_, Occasion::NewGame);
  return GameSentence(game_, isSameGame ? Occasion::Move : Occasion::Arrival);
}

std::optional<Sentence> BoardNews::Answer(int square) const {
  switch (wish_) {
    case Wish::Press:
      return RefusalSentence(game_, pressed_ == -1 ? square : pressed_);
    case Wish::Step:
      return EdgeSentence(square);
    case Wish::TakeBack:
      return NothingToUndoSentence(square);
    case Wish::Nothing:
      break;
  }
  return std::nullopt;
}
