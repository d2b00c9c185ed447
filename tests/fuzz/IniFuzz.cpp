#include "storage/IniText.h"

// Any bytes can be read and written to, and what was written is read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  IniValues(text).Value("Settings", "Solve Refresh");
  const QByteArray changed = ReplaceIniValues(text, {{"Settings", "Solve Refresh", "250"}});
  if (IniValues(changed).Value("Settings", "Solve Refresh") != "250") __builtin_trap();
  return 0;
}
