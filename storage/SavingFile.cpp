#include "storage/SavingFile.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/random.h>
#include <tuple>
#include <vector>

namespace {

constexpr QByteArrayView Prefix = ".gallopade-saving-";
constexpr int DigitsOfName = 16;
// Of the names that are tried, none is in use unless someone can foresee them after all.
constexpr int LongestSearch = 16;

QByteArray ChanceName() {
  std::uint64_t number = 0;
  if (getrandom(&number, sizeof number, 0) != sizeof number) return {};
  return Prefix.toByteArray() +
         QByteArray::number(static_cast<qulonglong>(number), 16).rightJustified(DigitsOfName, '0');
}

bool IsOurs(QByteArrayView name) {
  if (!name.startsWith(Prefix) || name.size() != Prefix.size() + DigitsOfName) return false;
  const QByteArrayView digits = name.sliced(Prefix.size());
  return std::all_of(digits.begin(), digits.end(), [](char digit) {
    return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f');
  });
}

// A saving file is locked by its process for as long as that lives. The name may be a symbolic link
// by now, or anything else that is not ours to open.
bool IsLeft(const OpenFolder& folder, const char* name, uid_t owner) {
  const Descriptor file(
      openat(folder.Number(), name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) return false;
  if (!S_ISREG(status.st_mode)) return false;
  if (status.st_uid != geteuid() && status.st_uid != owner) return false;
  return flock(file.Number(), LOCK_EX | LOCK_NB) == 0;
}

std::vector<QByteArray> OurNames(const OpenFolder& folder) {
  const int listed = openat(folder.Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const std::unique_ptr<DIR, int (*)(DIR*)> list(listed < 0 ? nullptr : fdopendir(listed),
                                                 closedir);
  std::vector<QByteArray> names;
  if (!list) return names;
  while (const dirent* entry = readdir(list.get())) {
    if (IsOurs(entry->d_name)) names.emplace_back(entry->d_name);
  }
  return names;
}

}  // namespace

SavingFile::SavingFile(const OpenFolder& folder, mode_t mode) : folder_(folder), descriptor_(-1) {
  for (int search = 0; search < LongestSearch && !IsOpen(); ++search) {
    name_ = ChanceName();
    if (name_.isEmpty()) return;
    descriptor_ = Descriptor(Persist([&] {
      return openat(folder.Number(), name_.constData(),
                    O_CREAT | O_EXCL | O_WRONLY | O_NOFOLLOW | O_CLOEXEC, mode);
    }));
    if (!IsOpen() && errno != EEXIST) return;
  }
  // Unlocked up to now, it may be removed as one that was left; the save then begins with another.
  if (IsOpen()) std::ignore = Persist([this] { return flock(Number(), LOCK_EX | LOCK_NB); });
}

SavingFile::~SavingFile() {
  const int reason = errno;
  if (IsOpen() && !name_.isEmpty()) unlinkat(folder_.Number(), name_.constData(), 0);
  errno = reason;
}

bool SavingFile::Write(const QByteArray& bytes) const {
  for (qsizetype written = 0; written < bytes.size();) {
    const auto rest = static_cast<std::size_t>(bytes.size() - written);
    const ssize_t now = Persist([&] { return write(Number(), bytes.constData() + written, rest); });
    if (now < 0) return false;
    written += now;
  }
  return Persist([this] { return fsync(Number()); }) == 0;
}

bool SavingFile::TakeNameOf(const QByteArray& name) {
  const auto rename = [&] {
    return renameat(folder_.Number(), name_.constData(), folder_.Number(), name.constData());
  };
  if (Persist(rename) != 0) return false;
  name_.clear();
  return true;
}

void RemoveLeftSavingFiles(const OpenFolder& folder, uid_t owner) {
  for (const QByteArray& name : OurNames(folder)) {
    if (IsLeft(folder, name.constData(), owner)) unlinkat(folder.Number(), name.constData(), 0);
  }
}
