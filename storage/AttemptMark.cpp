#include "storage/AttemptMark.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <tuple>

#include <QFile>

namespace {

constexpr mode_t ModeOfNewFiles = 0666;  // less the user's mask

void SetLength(int descriptor, off_t length) {
  std::ignore = ftruncate(descriptor, length);
}

bool IsFree(int descriptor) {
  return flock(descriptor, LOCK_EX | LOCK_NB) == 0;
}

// Anything else of that name is somebody's file, and is not to be emptied.
bool IsMark(const struct stat& status) {
  return S_ISREG(status.st_mode) && status.st_nlink == 1 && status.st_uid == geteuid() &&
         status.st_size <= 1;
}

}  // namespace

// A byte in the file says that somebody is trying, and the lock that he is still alive. A copy that
// is living may have opened the file at any moment: it must not find that byte unlocked.
AttemptMark::AttemptMark(const QString& pathName)
    : name_(QFile::encodeName(pathName)),
      file_(open(name_.constData(), O_CREAT | O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                 ModeOfNewFiles)) {
  if (!file_.IsOpen()) return;
  struct stat status {};
  if (IsFree(file_.Number()) && fstat(file_.Number(), &status) == 0 && IsMark(status)) {
    wasCutShortBefore_ = status.st_size > 0;
    SetLength(file_.Number(), 1);
  } else {
    file_ = Descriptor(-1);
  }
}

AttemptMark::~AttemptMark() {
  if (!file_.IsOpen()) return;
  SetLength(file_.Number(), 0);
  unlink(name_.constData());
}
