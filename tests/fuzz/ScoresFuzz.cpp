#include "storage/ScoreLists.h"

namespace {

// Any game finds a place in any list or none, and a list with it can be written.
void Enter(ScoreList list, ScoreRows rows, const FinishedGame& game) {
  const int place = InsertionPlace(list, rows, game);
  if (place < 0 || place > 10) __builtin_trap();
  if (place < 10) InsertScore(rows, place, RowOf(game, "Ann"));
  if (place < 10 && rows.at(static_cast<std::size_t>(place)).name != "Ann") __builtin_trap();
  if (ScoreEntries(list, rows).size() != 30) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto* text = reinterpret_cast<const char*>(data);
  const IniValues values(QByteArray(text, static_cast<qsizetype>(size)));
  const auto moves = static_cast<std::int16_t>(size % 65);
  const ScoreList list = size % 2 == 0 ? ScoreList::High : ScoreList::Low;
  Enter(list, RowsFrom(values, list), {moves, static_cast<std::int32_t>(size)});
  return 0;
}
