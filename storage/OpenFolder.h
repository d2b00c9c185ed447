#pragma once

#include <QByteArray>

#include "storage/SystemCalls.h"

// How long to wait for another copy of the program that is changing a file of the folder.
enum class Wait { Not, AMoment, AsLongAsItTakes };

// What became of asking for a folder's lock. Some disks know no locks: of two copies that change
// a file there at once, the last one wins.
enum class FolderLock { Taken, AnotherHasIt, ThereIsNone };

// An open folder, in which files are named without the way to it. Whatever the way leads to
// later, all that is done to it is done in one folder.
class OpenFolder {
 public:
  explicit OpenFolder(const QByteArray& name);

  bool IsOpen() const { return descriptor_.IsOpen(); }
  int Number() const { return descriptor_.Number(); }

  // Keeps other running copies of the program from changing the folder's key/value files for as
  // long as this lives. The lock belongs to the process, so a killed one leaves nothing that the
  // next would have to wait for or clear away.
  [[nodiscard]] FolderLock Lock(Wait wait) const;

  // Brings the names of its files onto the disk.
  [[nodiscard]] bool Sync() const;

 private:
  Descriptor descriptor_;
};
