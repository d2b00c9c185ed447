#include "storage/FileRights.h"

#include <algorithm>
#include <optional>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <vector>

#include <QByteArray>
#include <QList>

#include "storage/SystemCalls.h"

namespace {

constexpr mode_t PermissionBits = 07777;

bool LookAt(int file, struct stat& status) {
  return Persist([&] { return fstat(file, &status); }) == 0;
}

// What a call fills in that first tells the size.
template <typename Call>
std::optional<QByteArray> Filled(const Call& call) {
  const ssize_t size = call(nullptr, 0);
  if (size < 0) return std::nullopt;
  QByteArray bytes(size, '\0');
  const ssize_t filled = call(bytes.data(), static_cast<std::size_t>(size));
  if (filled < 0) return std::nullopt;
  return bytes.first(filled);
}

// The list is empty on disks that know no attributes, and missing when they cannot be told.
std::optional<QList<QByteArray>> AttributesOf(int file) {
  const auto names =
      Filled([file](char* list, std::size_t size) { return flistxattr(file, list, size); });
  if (!names && errno != EOPNOTSUPP) return std::nullopt;
  QList<QByteArray> attributes = names.value_or(QByteArray()).split('\0');
  attributes.removeAll(QByteArray());
  return attributes;
}

std::optional<QByteArray> ValueOf(int file, const QByteArray& attribute) {
  return Filled([&](char* value, std::size_t size) {
    return fgetxattr(file, attribute.constData(), value, size);
  });
}

bool CopyAttribute(int from, int to, const QByteArray& attribute) {
  const auto value = ValueOf(from, attribute);
  if (!value) return false;
  if (ValueOf(to, attribute) == value) return true;
  const auto size = static_cast<std::size_t>(value->size());
  return fsetxattr(to, attribute.constData(), value->constData(), size, 0) == 0;
}

// An access list that the folder gives to its new files is taken off again where the other file has
// none.
bool CopyAttributes(int from, int to) {
  const auto wanted = AttributesOf(from);
  const auto present = AttributesOf(to);
  if (!wanted || !present) return false;
  const bool areOthersGone =
      std::all_of(present->begin(), present->end(), [&](const QByteArray& name) {
        return wanted->contains(name) || fremovexattr(to, name.constData()) == 0;
      });
  return areOthersGone && std::all_of(wanted->begin(), wanted->end(), [&](const QByteArray& name) {
           return CopyAttribute(from, to, name);
         });
}

}  // namespace

// Sets only what differs, since some disks know no owners or permissions but their own. The owner
// comes first, since a change of owner takes permission bits away, and permissions come last, so
// that nobody has them who shall not.
bool CopyRights(int from, int to) {
  struct stat wanted {};
  struct stat now {};
  if (!LookAt(from, wanted) || !LookAt(to, now)) return false;
  const bool isOwned = wanted.st_uid == now.st_uid && wanted.st_gid == now.st_gid;
  if (!isOwned && fchown(to, wanted.st_uid, wanted.st_gid) != 0) return false;
  if (!CopyAttributes(from, to) || !LookAt(to, now)) return false;
  if (wanted.st_mode != now.st_mode && fchmod(to, wanted.st_mode & PermissionBits) != 0) {
    return false;
  }
  // A bit that the system does not let the caller give is dropped without a word.
  return LookAt(to, now) && now.st_mode == wanted.st_mode;
}
