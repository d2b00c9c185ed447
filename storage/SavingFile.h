#pragma once

#include <sys/stat.h>

#include <QByteArray>

#include "storage/OpenFolder.h"
#include "storage/SystemCalls.h"

// Where bytes go until they take the place of an old file: a hidden file in the same folder, made
// anew under a name that nobody can foresee. It disappears again unless it took that place. What
// fails leaves its reason in errno.
class SavingFile {
 public:
  // The folder outlives the file.
  SavingFile(const OpenFolder& folder, mode_t mode);
  ~SavingFile();
  SavingFile(const SavingFile&) = delete;
  SavingFile& operator=(const SavingFile&) = delete;

  bool IsOpen() const { return descriptor_.IsOpen(); }
  int Number() const { return descriptor_.Number(); }
  // All of the bytes, and onto the disk.
  [[nodiscard]] bool Write(const QByteArray& bytes) const;
  // Of another file in the folder, which need not exist.
  [[nodiscard]] bool TakeNameOf(const QByteArray& name);

 private:
  const OpenFolder& folder_;
  QByteArray name_;
  Descriptor descriptor_;
};

// Removes what killed processes of this user, or of the owner of the file that is being replaced,
// left in the folder: nothing that a living one is saving.
void RemoveLeftSavingFiles(const OpenFolder& folder, uid_t owner);
