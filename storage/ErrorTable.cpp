#include "storage/ErrorTable.h"

#include <cerrno>

namespace {

const char* Description(ProgramError error) {
  switch (error) {
    case ProgramError::Overflow:
      return "Overflow";
    case ProgramError::SubscriptOutOfRange:
      return "Subscript out of range";
    case ProgramError::BadFileName:
      return "Bad file name or number";
    case ProgramError::FileNotFound:
      return "File not found";
    case ProgramError::DeviceIo:
      return "Device I/O error";
    case ProgramError::DiskFull:
      return "Disk full";
    case ProgramError::InputPastEnd:
      return "Input past end of file";
    case ProgramError::PermissionDenied:
      return "Permission denied";
    case ProgramError::PathFileAccess:
      return "Path/File access error";
    case ProgramError::PathNotFound:
      return "Path not found";
    case ProgramError::Printer:
      return "Printer error";
  }
  return "Device I/O error";
}

}  // namespace

QString ErrorText(ProgramError error) {
  return QString("%1 (%2).").arg(Description(error)).arg(static_cast<int>(error));
}

ProgramError ErrorFromSystem(int systemError, ProgramError whenMissing) {
  switch (systemError) {
    case ENOENT:
    case ENOTDIR:
      return whenMissing;
    case ENAMETOOLONG:
    case EINVAL:
    case ELOOP:
      return ProgramError::BadFileName;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ProgramError::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return ProgramError::PermissionDenied;
    case EISDIR:
      return ProgramError::PathFileAccess;
    default:
      return ProgramError::DeviceIo;
  }
}
