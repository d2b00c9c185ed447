#pragma once

#include <QString>

// What can go wrong with files and printing, under the numbers that messages show.
enum class ProgramError {
  Overflow = 6,
  SubscriptOutOfRange = 9,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceIo = 57,
  DiskFull = 61,
  InputPastEnd = 62,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  Printer = 482,
};

// "File not found (53)."
QString ErrorText(ProgramError error);

// The error that a failed system call left in errno. whenMissing: what a missing file or folder
// means to the caller.
ProgramError ErrorFromSystem(int systemError, ProgramError whenMissing);
