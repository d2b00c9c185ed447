#include "storage/IniStore.h"

#include <QLockFile>

#include "storage/FileWriter.h"

namespace {

constexpr qsizetype LargestFile = 1024 * 1024;
// A copy of the program holds the lock for milliseconds; a lock left by a killed one is broken.
constexpr int LongestWaitMilliseconds = 2000;

std::optional<ProgramError> Replace(const QString& pathName, const IniChange& change) {
  const FileContent content = ReadIniStore(pathName);
  if (content.error && content.error != ProgramError::FileNotFound) return content.error;
  const std::vector<IniEntry> entries = change(content.bytes);
  if (entries.empty()) return std::nullopt;
  const QByteArray text = ReplaceIniValues(content.bytes, entries);
  if (text.size() > LargestFile) return ProgramError::Overflow;
  return WriteFile(pathName, text);
}

}  // namespace

FileContent ReadIniStore(const QString& pathName) {
  FileContent content = ReadFile(pathName, LargestFile + 1);
  if (content.bytes.size() > LargestFile) return {{}, ProgramError::Overflow};
  return content;
}

std::optional<ProgramError> UpdateIniStore(const QString& pathName, const IniChange& change) {
  QLockFile lock(pathName + ".lock");
  if (!lock.tryLock(LongestWaitMilliseconds)) return ProgramError::PermissionDenied;
  return Replace(pathName, change);
}
