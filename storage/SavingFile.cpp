#include "storage/SavingFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>

namespace {

const QString Prefix = ".gallopade-saving-";
constexpr mode_t ModeOfNewFiles = 0666;  // less the user's mask
constexpr mode_t PermissionBits = 07777;

// Again as long as nothing but a signal came in between.
template <typename Call>
auto Persist(const Call& call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

bool CopyMode(const QByteArray& from, int descriptor) {
  struct stat status {};
  if (Persist([&] { return stat(from.constData(), &status); }) != 0) return errno == ENOENT;
  return Persist([&] { return fchmod(descriptor, status.st_mode & PermissionBits); }) == 0;
}

}  // namespace

SavingFile::SavingFile(const QString& folder)
    : name_(QFile::encodeName(QDir(folder).filePath(Prefix + QString::number(getpid())))),
      descriptor_(Persist([this] {
        return open(name_.constData(), O_CREAT | O_TRUNC | O_WRONLY | O_NOFOLLOW | O_CLOEXEC,
                    ModeOfNewFiles);
      })) {}

SavingFile::~SavingFile() {
  if (descriptor_ < 0) return;
  const int reason = errno;
  close(descriptor_);
  if (!name_.isEmpty()) unlink(name_.constData());
  errno = reason;
}

bool SavingFile::Write(const QByteArray& bytes) const {
  for (qsizetype written = 0; written < bytes.size();) {
    const auto rest = static_cast<std::size_t>(bytes.size() - written);
    const ssize_t now =
        Persist([&] { return write(descriptor_, bytes.constData() + written, rest); });
    if (now < 0) return false;
    written += now;
  }
  return Persist([this] { return fsync(descriptor_); }) == 0;
}

bool SavingFile::TakePlaceOf(const QString& pathName) {
  const QByteArray target = QFile::encodeName(pathName);
  if (!CopyMode(target, descriptor_)) return false;
  if (Persist([&] { return rename(name_.constData(), target.constData()); }) != 0) return false;
  name_.clear();
  return true;
}

void RemoveLeftSavingFiles(const QString& folder) {
  QDir place(folder);
  const QStringList left = place.entryList({Prefix + "*"}, QDir::Files | QDir::Hidden);
  for (const QString& name : left) place.remove(name);
}
