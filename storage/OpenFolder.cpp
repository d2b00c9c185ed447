#include "storage/OpenFolder.h"

#include <fcntl.h>

namespace {

int Open(const QByteArray& name, int access) {
  return Persist([&] { return open(name.constData(), access | O_DIRECTORY | O_CLOEXEC); });
}

// Files can be saved in a folder that may not be listed, too.
int OpenInAnyWay(const QByteArray& name) {
  const int folder = Open(name, O_RDONLY);
  return folder == -1 && errno == EACCES ? Open(name, O_PATH) : folder;
}

}  // namespace

OpenFolder::OpenFolder(const QByteArray& name) : descriptor_(OpenInAnyWay(name)) {}

bool OpenFolder::Sync() const {
  if (Persist([this] { return fsync(Number()); }) == 0) return true;
  // Not every disk can do that for folders, and no disk for one that may not be listed.
  return errno == EINVAL || errno == EOPNOTSUPP || errno == EBADF;
}
