#include "storage/IniStore.h"

#include <QFileInfo>

#include "storage/FileWriter.h"
#include "storage/FolderLock.h"

namespace {

constexpr qsizetype LargestFile = qsizetype{1024} * 1024;

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
  FolderLock lock(QFileInfo(pathName).path());
  if (!lock.Take()) return ProgramError::PermissionDenied;
  return Replace(pathName, change);
}
