#include "storage/IniStore.h"

#include <QFileInfo>

#include "storage/FileWriter.h"

namespace {

constexpr qsizetype LargestFile = qsizetype{1024} * 1024;

std::optional<ProgramError> Replace(const FolderLock& lock, const QString& fileName,
                                    const IniChange& change) {
  const FileContent content = ReadIniStore(fileName);
  if (content.error && content.error != ProgramError::FileNotFound) return content.error;
  const std::vector<IniEntry> entries = change(content.bytes);
  if (entries.empty()) return std::nullopt;
  const QByteArray text = ReplaceIniValues(content.bytes, entries);
  if (text.size() > LargestFile) return ProgramError::Overflow;
  return ReplaceFile(lock, fileName, text);
}

}  // namespace

FileContent ReadIniStore(const QString& pathName) {
  FileContent content = ReadFile(pathName, LargestFile + 1);
  if (content.bytes.size() > LargestFile) return {{}, ProgramError::Overflow};
  return content;
}

std::optional<ProgramError> UpdateIniStore(const QString& pathName, const IniChange& change) {
  const QString fileName = FileBehindLinks(pathName);
  FolderLock lock(QFileInfo(fileName).path());
  if (!lock.Take()) return ProgramError::PermissionDenied;
  return Replace(lock, fileName, change);
}
