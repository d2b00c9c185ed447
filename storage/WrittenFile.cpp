#include "storage/WrittenFile.h"

#include <fcntl.h>
#include <tuple>

namespace {

// More than the program ever writes; a longer file is not kept in memory to be put back.
constexpr off_t LongestKept = off_t{16} * 1024 * 1024;

int OpenFor(int access, const OpenFolder& folder, const QByteArray& name) {
  return Persist([&] {
    return openat(folder.Number(), name.constData(),
                  access | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  });
}

// Who may not read a file may still write it.
int OpenForWriting(const OpenFolder& folder, const QByteArray& name) {
  const int file = OpenFor(O_RDWR, folder, name);
  return file == -1 && errno == EACCES ? OpenFor(O_WRONLY, folder, name) : file;
}

std::optional<QByteArray> ContentOf(int file) {
  struct stat status {};
  if (fstat(file, &status) != 0 || status.st_size > LongestKept) return std::nullopt;
  QByteArray bytes(status.st_size, '\0');
  const auto size = static_cast<std::size_t>(status.st_size);
  const auto read = [&] { return pread(file, bytes.data(), size, 0); };
  if (Persist(read) != status.st_size) return std::nullopt;
  return bytes;
}

bool PutOver(int file, const QByteArray& bytes) {
  for (qsizetype written = 0; written < bytes.size();) {
    const auto rest = static_cast<std::size_t>(bytes.size() - written);
    const ssize_t now =
        Persist([&] { return pwrite(file, bytes.constData() + written, rest, written); });
    if (now < 0) return false;
    written += now;
  }
  return Persist([&] { return ftruncate(file, bytes.size()); }) == 0 &&
         Persist([&] { return fsync(file); }) == 0;
}

}  // namespace

// Looked at before it is opened, since opening a pipe or a device does something to it, and after,
// since it may be another file by then.
WrittenFile::WrittenFile(const OpenFolder& folder, const QByteArray& name) : file_(-1) {
  const auto look = [&] {
    return fstatat(folder.Number(), name.constData(), &status_, AT_SYMLINK_NOFOLLOW);
  };
  if (Persist(look) != 0) {
    if (errno != ENOENT) error_ = ErrorFromSystem(errno, ProgramError::PathNotFound);
    return;
  }
  error_ = ProgramError::PathFileAccess;
  if (!S_ISREG(status_.st_mode)) return;
  file_ = Descriptor(OpenForWriting(folder, name));
  if (!IsThere() || Persist([this] { return fstat(Number(), &status_); }) != 0) {
    error_ = ErrorFromSystem(errno, ProgramError::PathNotFound);
  } else if (S_ISREG(status_.st_mode)) {
    error_ = std::nullopt;
  }
}

bool WrittenFile::Overwrite(const QByteArray& bytes) const {
  const auto before = ContentOf(Number());
  if (PutOver(Number(), bytes)) return true;
  const int reason = errno;
  if (before) std::ignore = PutOver(Number(), *before);
  errno = reason;
  return false;
}
