#include "storage/FileReader.h"

#include <algorithm>
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

// A part at a time: room for the most there may be is costly to get, and most files are small.
QByteArray ReadUpTo(QFile& file, qint64 maximumBytes) {
  constexpr qint64 Part = 4096;
  QByteArray bytes;
  QByteArray part;
  do {
    part = file.read(std::min<qint64>(Part, maximumBytes - bytes.size()));
    bytes += part;
  } while (!part.isEmpty());
  return bytes;
}

}  // namespace

FileContent ReadFile(const QString& pathName, qint64 maximumBytes) {
  if (const auto error = WhyNotReadable(pathName)) return {{}, error};
  QFile file(pathName);
  errno = 0;
  if (!file.open(QIODevice::ReadOnly)) {
    return {{}, ErrorFromSystem(errno, ProgramError::FileNotFound)};
  }
  QByteArray bytes = ReadUpTo(file, maximumBytes);
  if (file.error() != QFileDevice::NoError) return {{}, ProgramError::DeviceIo};
  return {bytes};
}
