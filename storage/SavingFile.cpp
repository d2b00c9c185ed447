#include "storage/SavingFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>

namespace {

constexpr QLatin1StringView Prefix(".gallopade-saving-");
constexpr mode_t ModeOfNewFiles = 0666;  // less the user's mask
constexpr mode_t PermissionBits = 07777;

// Again as long as nothing but a signal came in between.
template <typename Call>
auto Persist(const Call& call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

// Sets only what differs, since some disks know no permissions but their own.
bool CopyMode(const QByteArray& from, int descriptor) {
  struct stat old {};
  if (Persist([&] { return stat(from.constData(), &old); }) != 0) return errno == ENOENT;
  struct stat now {};
  if (Persist([&] { return fstat(descriptor, &now); }) != 0) return false;
  if (old.st_mode == now.st_mode) return true;
  return Persist([&] { return fchmod(descriptor, old.st_mode & PermissionBits); }) == 0;
}

bool IsOurs(const QString& name) {
  bool endsInNumber = false;
  static_cast<void>(QStringView(name).mid(Prefix.size()).toUInt(&endsInNumber));
  return endsInNumber;
}

// A saving file is locked by its process for as long as that lives. The name may be a symbolic link
// by now, or anything else that is not ours to open.
bool IsLeft(const QByteArray& name) {
  const int descriptor = open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return false;
  const bool isFree = flock(descriptor, LOCK_EX | LOCK_NB) == 0;
  close(descriptor);
  return isFree;
}

}  // namespace

SavingFile::SavingFile(const QString& folder)
    : name_(QFile::encodeName(QDir(folder).filePath(Prefix + QString::number(getpid())))),
      descriptor_(Persist([this] {
        return open(name_.constData(), O_CREAT | O_TRUNC | O_WRONLY | O_NOFOLLOW | O_CLOEXEC,
                    ModeOfNewFiles);
      })) {
  // Without a lock, as on disks that know none, the folder's own lock guards the file alone.
  if (IsOpen()) flock(descriptor_, LOCK_EX | LOCK_NB);
}

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
  const QDir place(folder);
  const QStringList names = place.entryList({Prefix + QString("*")}, QDir::Files | QDir::Hidden);
  for (const QString& name : names) {
    const QByteArray file = QFile::encodeName(place.filePath(name));
    if (IsOurs(name) && IsLeft(file)) unlink(file.constData());
  }
}
