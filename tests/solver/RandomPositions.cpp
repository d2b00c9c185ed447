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

std::vector<MoveRow> FileWithSquaresNamedTwice(std::mt19937& random) {
  std::vector<MoveRow> moves = RandomWalk(random, 20, 60);
  const std::size_t length = moves.size() + 1 + random() % (SquareCount - moves.size());
  while (moves.size() < length) {
    const MoveRow again = moves[random() % moves.size()];
    const auto before = static_cast<std::ptrdiff_t>(random() % (moves.size() + 1));
    moves.insert(moves.begin() + before, again);
  }
  return moves;
}
