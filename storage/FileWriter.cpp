#include "storage/FileWriter.h"

#include <cerrno>
#include <fcntl.h>

#include "storage/FileRights.h"
#include "storage/SavingFile.h"
#include "storage/WrittenFile.h"

namespace {

constexpr mode_t ModeOfNewFiles = 0666;  // less the user's mask
constexpr mode_t ModeUntilRightsAreKnown = 0600;

std::optional<ProgramError> Error() {
  return ErrorFromSystem(errno, ProgramError::PathNotFound);
}

// The folder takes no new file, or does not let the old one go; the old one may take new content.
bool IsRefusedByFolder() {
  return errno == EACCES || errno == EPERM || errno == EROFS || errno == EBUSY;
}

// Another copy of the program may remove a saving file that it takes for left: one that has no lock
// yet, and any on a disk whose locks hold on one computer only.
constexpr int MostSavingFiles = 5;

enum class Replaced { Yes, No, NotInThisWay, FileIsGone };

Replaced ReplaceBy(SavingFile& file, const OpenFolder& folder, const WrittenFile& old,
                   const QByteArray& name, const QByteArray& bytes) {
  if (!file.IsOpen()) return IsRefusedByFolder() ? Replaced::NotInThisWay : Replaced::No;
  if (!file.Write(bytes)) return Replaced::No;
  if (old.IsThere() && (old.HasOtherNames() || !CopyRights(old.Number(), file.Number()))) {
    return Replaced::NotInThisWay;
  }
  if (file.TakeNameOf(name)) return folder.Sync() ? Replaced::Yes : Replaced::No;
  if (errno == ENOENT) return Replaced::FileIsGone;
  return IsRefusedByFolder() ? Replaced::NotInThisWay : Replaced::No;
}

Replaced ReplaceByNewFile(const OpenFolder& folder, const WrittenFile& old, const QByteArray& name,
                          const QByteArray& bytes) {
  Replaced replaced = Replaced::FileIsGone;
  for (int files = 0; replaced == Replaced::FileIsGone && files < MostSavingFiles; ++files) {
    SavingFile file(folder, old.IsThere() ? ModeUntilRightsAreKnown : ModeOfNewFiles);
    replaced = ReplaceBy(file, folder, old, name, bytes);
  }
  return replaced;
}

}  // namespace

std::optional<ProgramError> ReplaceFile(const OpenFolder& folder, const QByteArray& name,
                                        const QByteArray& bytes) {
  const WrittenFile old(folder, name);
  if (old.Error()) return old.Error();
  RemoveLeftSavingFiles(folder, old.IsThere() ? old.Owner() : geteuid());
  const Replaced replaced = ReplaceByNewFile(folder, old, name, bytes);
  if (replaced == Replaced::Yes) return std::nullopt;
  if (replaced == Replaced::NotInThisWay && old.IsThere() && old.Overwrite(bytes)) {
    return std::nullopt;
  }
  return Error();
}

std::optional<ProgramError> WriteFile(const QString& pathName, const QByteArray& bytes) {
  if (IsNoPath(pathName)) return ProgramError::BadFileName;
  const FilePlace place = PlaceBehindLinks(pathName);
  const OpenFolder folder(place.folder);
  if (!folder.IsOpen()) return Error();
  return ReplaceFile(folder, place.name, bytes);
}

std::optional<ProgramError> ClearFile(const OpenFolder& folder, const FilePlace& place) {
  const char* name = place.name.constData();
  struct stat status {};
  if (fstatat(folder.Number(), name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
    return errno == ENOENT ? std::nullopt : Error();
  }
  const bool hasOneName = !place.isLinked && status.st_nlink == 1;
  if (hasOneName && unlinkat(folder.Number(), name, 0) == 0 && folder.Sync()) return std::nullopt;
  return ReplaceFile(folder, place.name, {});
}
