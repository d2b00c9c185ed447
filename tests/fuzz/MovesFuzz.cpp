#include <algorithm>

#include "storage/GameFile.h"
#include "storage/MoveListExport.h"

namespace {

GameState StateOf(const GameFile& game) {
  GameState state;
  state.MoveCount = static_cast<std::int16_t>(game.moves.size());
  std::copy(game.moves.begin(), game.moves.end(), state.MoveList.begin());
  return state;
}

}  // namespace

// The moves of any game file can be exported in every form, each move in a line. The form goes by
// the size of the file, so that a run makes one of them only.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto* text = reinterpret_cast<const char*>(data);
  const GameState state = StateOf(ParseGame(QByteArray(text, static_cast<qsizetype>(size))));
  const QStringList lines = MoveListLines(state);
  if (lines.size() != state.MoveCount) __builtin_trap();
  switch (size % 3) {
    case 0:
      if (ClipboardText(lines).count("\r\n") != lines.size()) __builtin_trap();
      break;
    case 1:
      if (MoveListAsPlainText(lines, " 1.0").count("\r\n") != lines.size() + 7) __builtin_trap();
      break;
    default:
      const qsizetype rows = std::min<qsizetype>(lines.size(), 32);
      if (MoveListAsRichText(lines, " 1.0").count("\r\n") != rows + 5) __builtin_trap();
  }
  return 0;
}
