#include "storage/FileWriter.h"

#include <cerrno>

#include <QDir>
#include <QFileInfo>

#include "storage/SavingFile.h"

namespace {

constexpr int LongestChainOfLinks = 40;

std::optional<ProgramError> WhyNotWritable(const QString& fileName) {
  if (fileName.isEmpty() || fileName.contains(QChar::Null)) return ProgramError::BadFileName;
  const QFileInfo file(fileName);
  if (!file.dir().exists()) return ProgramError::PathNotFound;
  if (file.isSymLink()) return ProgramError::PathFileAccess;
  if (!file.exists()) return std::nullopt;
  if (!file.isFile()) return ProgramError::PathFileAccess;
  if (!file.isWritable()) return ProgramError::PermissionDenied;
  return std::nullopt;
}

}  // namespace

QString FileBehindLinks(const QString& pathName) {
  if (pathName.contains(QChar::Null)) return pathName;
  QFileInfo file(pathName);
  for (int links = 0; links < LongestChainOfLinks && file.isSymLink(); ++links) {
    file.setFile(file.symLinkTarget());
  }
  return file.filePath();
}

std::optional<ProgramError> ReplaceFile(const FolderLock& lock, const QString& fileName,
                                        const QByteArray& bytes) {
  if (const auto error = WhyNotWritable(fileName)) return error;
  const QString folder = QFileInfo(fileName).path();
  if (lock.IsHeld()) RemoveLeftSavingFiles(folder);
  SavingFile file(folder);
  if (file.IsOpen() && file.Write(bytes) && file.TakePlaceOf(fileName)) return std::nullopt;
  return ErrorFromSystem(errno, ProgramError::PathNotFound);
}

std::optional<ProgramError> WriteFile(const QString& pathName, const QByteArray& bytes) {
  const QString fileName = FileBehindLinks(pathName);
  FolderLock lock(QFileInfo(fileName).path());
  lock.Take();
  return ReplaceFile(lock, fileName, bytes);
}
