#include "storage/AttemptMark.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

namespace {

constexpr mode_t ModeOfNewFiles = 0666;  // less the user's mask

bool SetLength(int descriptor, off_t length) {
  return ftruncate(descriptor, length) == 0;
}

bool IsFree(int descriptor) {
  return flock(descriptor, LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

// A byte in the file says that somebody is trying, and the lock that he is still alive. A copy that
// is living may have opened the file at any moment: it must not find that byte unlocked.
AttemptMark::AttemptMark(const QString& pathName)
    : name_(QFile::encodeName(pathName)),
      descriptor_(open(name_.constData(), O_CREAT | O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                       ModeOfNewFiles)) {
  if (descriptor_ < 0) return;
  struct stat status {};
  if (IsFree(descriptor_) && fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode)) {
    wasCutShortBefore_ = status.st_size > 0;
    SetLength(descriptor_, 1);
  } else {
    close(descriptor_);
    descriptor_ = -1;
  }
}

AttemptMark::~AttemptMark() {
  if (descriptor_ < 0) return;
  SetLength(descriptor_, 0);
  unlink(name_.constData());
  close(descriptor_);
}
