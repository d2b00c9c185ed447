#include "tests/solver/RandomPositions.h"

namespace {

// At most so many; a knight that is stuck ends its walk.
std::vector<MoveRow> TryToWalk(std::mt19937& random, std::size_t length) {
  GameState taken;
  int x = static_cast<int>(random() % 8);
  int y = static_cast<int>(random() % 8);
  std::vector<MoveRow> moves;
  const auto take = [&] {
    taken.Cell(x, y) = GameState::Visited;
    moves.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)});
  };
  take();
  for (int tries = 0; moves.size() < length && tries < 400; ++tries) {
    const Offset offset = KnightMoveOffsets[random() % 8];
    if (!IsSquare(x + offset.dx, y + offset.dy)) continue;
    if (taken.Cell(x + offset.dx, y + offset.dy) != GameState::Unvisited) continue;
    x += offset.dx;
    y += offset.dy;
    take();
  }
  return moves;
}

}  // namespace

std::vector<MoveRow> RandomWalk(std::mt19937& random, std::size_t least, std::size_t most) {
  for (;;) {
    std::vector<MoveRow> moves = TryToWalk(random, least + random() % (most - least + 1));
    if (moves.size() >= least) return moves;
  }
}
