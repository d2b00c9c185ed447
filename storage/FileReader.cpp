#include "storage/FileReader.h"

#include <cerrno>
#include <sys/stat.h>

#include <QFile>

namespace {

std::optional<ProgramError> WhyNotReadable(const QString& pathName) {
  if (pathName.isEmpty() || pathName.contains(QChar::Null)) return ProgramError::BadFileName;
  // Asked of the system itself: to the toolkit a file that cannot be looked at just now is not
  // there, and who takes it for missing writes a new one over it.
  struct stat status {};
  if (stat(QFile::encodeName(pathName).constData(), &status) != 0) {
    return ErrorFromSystem(errno, ProgramError::FileNotFound);
  }
  if (!S_ISREG(status.st_mode)) return ProgramError::PathFileAccess;
  return std::nullopt;
}

}  // namespace

FileContent ReadFile(const QString& pathName, qint64 maximumBytes) {
  if (const auto error = WhyNotReadable(pathName)) return {{}, error};
  QFile file(pathName);
  errno = 0;
  if (!file.open(QIODevice::ReadOnly)) {
    return {{}, ErrorFromSystem(errno, ProgramError::FileNotFound)};
  }
  QByteArray bytes = file.read(maximumBytes);
  if (file.error() != QFileDevice::NoError) return {{}, ProgramError::DeviceIo};
  return {bytes};
}
