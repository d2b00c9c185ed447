#include "storage/ChessboardFile.h"

// Any bytes give a look that can be drawn: its frame is no wider than a player could have chosen.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto* text = reinterpret_cast<const char*>(data);
  Settings settings;
  LoadChessboard(IniValues(QByteArray(text, static_cast<qsizetype>(size))), settings);
  if (settings.CornerDistance < 0 || settings.CornerDistance > 1500) __builtin_trap();
  return 0;
}
