#pragma once

#include <optional>
#include <sys/stat.h>

#include <QByteArray>

#include "storage/ErrorTable.h"
#include "storage/OpenFolder.h"
#include "storage/SystemCalls.h"

// A file that is there already and is about to be written, opened for it.
class WrittenFile {
 public:
  // An ordinary file, or none; a symbolic link or anything else is an error.
  WrittenFile(const OpenFolder& folder, const QByteArray& name);

  // Why it cannot be written.
  const std::optional<ProgramError>& Error() const { return error_; }
  bool IsThere() const { return file_.IsOpen(); }
  int Number() const { return file_.Number(); }
  uid_t Owner() const { return status_.st_uid; }
  bool HasOtherNames() const { return status_.st_nlink > 1; }

  // Writes over what the file holds, onto the disk. When that fails half-way, what it held is put
  // back. The reason is in errno.
  [[nodiscard]] bool Overwrite(const QByteArray& bytes) const;

 private:
  Descriptor file_;
  struct stat status_ {};
  std::optional<ProgramError> error_;
};
