#include "storage/FileWriter.h"

#include <cerrno>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

std::optional<ProgramError> WhyNotWritable(const QString& pathName) {
  if (pathName.isEmpty() || pathName.contains(QChar::Null)) return ProgramError::BadFileName;
  const QFileInfo file(pathName);
  if (!file.dir().exists()) return ProgramError::PathNotFound;
  if (!file.exists()) return std::nullopt;
  if (!file.isFile()) return ProgramError::PathFileAccess;
  if (!file.isWritable()) return ProgramError::PermissionDenied;
  return std::nullopt;
}

// commit() alone reports success and leaves an empty file when a small text met a full disk: the
// failure of the last buffer's flush is lost on it.
bool WriteWhole(QSaveFile& file, const QByteArray& bytes) {
  return file.write(bytes) == bytes.size() && file.flush() && file.error() == QFileDevice::NoError;
}

}  // namespace

std::optional<ProgramError> WriteFile(const QString& pathName, const QByteArray& bytes) {
  if (const auto error = WhyNotWritable(pathName)) return error;
  QSaveFile file(pathName);
  errno = 0;
  if (!file.open(QIODevice::WriteOnly)) return ErrorFromSystem(errno, ProgramError::PathNotFound);
  if (!WriteWhole(file, bytes)) {
    const int systemError = errno;
    file.cancelWriting();
    return ErrorFromSystem(systemError, ProgramError::PathNotFound);
  }
  if (!file.commit()) return ErrorFromSystem(errno, ProgramError::PathNotFound);
  return std::nullopt;
}
