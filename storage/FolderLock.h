#pragma once

#include <QString>

// Keeps other running copies of the program from changing the files of a folder for as long as it
// lives. The lock belongs to the process, so a killed one leaves nothing that the next would have
// to wait for or clear away.
class FolderLock {
 public:
  explicit FolderLock(const QString& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // Waits for a moment; false when another copy has the folder all the while. A folder that cannot
  // be locked at all is nobody's.
  bool Take();
  // Whether the folder is really this copy's alone.
  bool IsHeld() const { return isHeld_; }

 private:
  int descriptor_;
  bool isHeld_ = false;
};
