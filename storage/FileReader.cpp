#include "storage/FileReader.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

#include "storage/PathName.h"
#include "storage/SystemCalls.h"

namespace {

// The system itself is asked: to Qt a file that cannot be looked at just now is not there, and who
// takes it for missing writes a new one over it.
bool Look(const QByteArray& path, struct stat& status) {
  return Persist([&] { return stat(path.constData(), &status); }) == 0;
}

// The file itself, or a folder on the way to it.
ProgramError WhatIsMissing(const QString& pathName) {
  struct stat folder {};
  const bool isThere = Look(PlaceBehindLinks(pathName).folder, folder) && S_ISDIR(folder.st_mode);
  return isThere ? ProgramError::FileNotFound : ProgramError::PathNotFound;
}

FileContent Failure(const QString& pathName) {
  const int reason = errno;
  return {{}, ErrorFromSystem(reason, WhatIsMissing(pathName))};
}

// A part at a time: room for the most there may be is costly to get, and most files are small.
FileContent ReadUpTo(int file, qint64 maximumBytes) {
  constexpr qint64 LongestPart = 4096;
  QByteArray bytes;
  QByteArray part(LongestPart, '\0');
  while (bytes.size() < maximumBytes) {
    const qint64 most = std::min(LongestPart, maximumBytes - bytes.size());
    const ssize_t now =
        Persist([&] { return read(file, part.data(), static_cast<std::size_t>(most)); });
    if (now < 0) return {{}, ProgramError::DeviceIo};
    if (now == 0) break;
    bytes += part.first(now);
  }
  return {bytes};
}

}  // namespace

FileContent ReadFile(const QString& pathName, qint64 maximumBytes) {
  if (IsNoPath(pathName)) return {{}, ProgramError::BadFileName};
  const QByteArray path = BytesOfPath(pathName);
  struct stat status {};
  const auto open = [&path] {
    return ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  };
  if (!Look(path, status)) return Failure(pathName);
  if (!S_ISREG(status.st_mode)) return {{}, ProgramError::PathFileAccess};
  const Descriptor file(Persist(open));
  if (!file.IsOpen()) return Failure(pathName);
  return ReadUpTo(file.Number(), maximumBytes);
}

bool IsOrdinaryFile(const QString& pathName) {
  struct stat status {};
  return !IsNoPath(pathName) && Look(BytesOfPath(pathName), status) && S_ISREG(status.st_mode);
}
