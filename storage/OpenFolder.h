#pragma once

#include <QByteArray>

#include "storage/SystemCalls.h"

// An open folder, in which files are named without the way to it. Whatever the way leads to
// later, all that is done to it is done in one folder.
class OpenFolder {
 public:
  explicit OpenFolder(const QByteArray& name);

  bool IsOpen() const { return descriptor_.IsOpen(); }
  int Number() const { return descriptor_.Number(); }

  // Brings the names of its files onto the disk.
  [[nodiscard]] bool Sync() const;

 private:
  Descriptor descriptor_;
};
