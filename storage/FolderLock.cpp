#include "storage/FolderLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

#include <QFile>

namespace {

// Another copy needs the folder for some milliseconds.
constexpr auto LongestWait = std::chrono::seconds(2);
constexpr auto Pause = std::chrono::milliseconds(5);

}  // namespace

FolderLock::FolderLock(const QString& folder)
    : descriptor_(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) close(descriptor_);
}

bool FolderLock::Take() {
  const auto end = std::chrono::steady_clock::now() + LongestWait;
  while (flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return true;
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(Pause);
  }
  isHeld_ = true;
  return true;
}
