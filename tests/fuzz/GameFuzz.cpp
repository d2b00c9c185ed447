#include "storage/GameFile.h"

// Any bytes are a game, or a reason why not; the moves of a game are squares, and no more than 64.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto* text = reinterpret_cast<const char*>(data);
  const GameFile game = ParseGame(QByteArray(text, static_cast<qsizetype>(size)));
  if (game.moves.size() > SquareCount) __builtin_trap();
  for (const MoveRow& move : game.moves) {
    if (!IsSquare(move.x, move.y)) __builtin_trap();
  }
  return 0;
}
