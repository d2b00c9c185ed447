#include "storage/FileReader.h"

#include <cerrno>

#include <QFile>
#include <QFileInfo>

namespace {

std::optional<ProgramError> WhyNotReadable(const QString& pathName) {
  if (pathName.isEmpty() || pathName.contains(QChar::Null)) return ProgramError::BadFileName;
  const QFileInfo file(pathName);
  if (!file.exists()) return ProgramError::FileNotFound;
  if (!file.isFile()) return ProgramError::PathFileAccess;
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
