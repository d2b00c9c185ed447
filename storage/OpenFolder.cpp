#include "storage/OpenFolder.h"

#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

namespace {

// Another copy needs the folder for some milliseconds.
constexpr auto AMoment = std::chrono::seconds(2);
constexpr auto Pause = std::chrono::milliseconds(5);

int Open(const QByteArray& name, int access) {
  return Persist([&] { return open(name.constData(), access | O_DIRECTORY | O_CLOEXEC); });
}

// Files can be saved in a folder that may not be listed, too.
int OpenInAnyWay(const QByteArray& name) {
  const int folder = Open(name, O_RDONLY);
  return folder == -1 && errno == EACCES ? Open(name, O_PATH) : folder;
}

FolderLock LockNow(int folder, int wait) {
  if (Persist([&] { return flock(folder, LOCK_EX | wait); }) == 0) return FolderLock::Taken;
  return errno == EWOULDBLOCK ? FolderLock::AnotherHasIt : FolderLock::ThereIsNone;
}

}  // namespace

OpenFolder::OpenFolder(const QByteArray& name) : descriptor_(OpenInAnyWay(name)) {}

FolderLock OpenFolder::Lock(Wait wait) const {
  if (wait == Wait::AsLongAsItTakes) return LockNow(Number(), 0);
  const auto end = std::chrono::steady_clock::now() + AMoment;
  FolderLock lock = LockNow(Number(), LOCK_NB);
  while (wait == Wait::AMoment && lock == FolderLock::AnotherHasIt &&
         std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(Pause);
    lock = LockNow(Number(), LOCK_NB);
  }
  return lock;
}

bool OpenFolder::Sync() const {
  if (Persist([this] { return fsync(Number()); }) == 0) return true;
  // Not every disk can do that for folders, and no disk for one that may not be listed.
  return errno == EINVAL || errno == EOPNOTSUPP || errno == EBADF;
}
