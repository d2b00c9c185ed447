#include <cerrno>

#include "tests/storage/TestFiles.h"

TEST(ErrorText, GivesDescriptionAndNumber) {
  EXPECT_EQ(ErrorText(ProgramError::Overflow), "Overflow (6).");
  EXPECT_EQ(ErrorText(ProgramError::SubscriptOutOfRange), "Subscript out of range (9).");
  EXPECT_EQ(ErrorText(ProgramError::BadFileName), "Bad file name or number (52).");
  EXPECT_EQ(ErrorText(ProgramError::FileNotFound), "File not found (53).");
  EXPECT_EQ(ErrorText(ProgramError::DeviceIo), "Device I/O error (57).");
  EXPECT_EQ(ErrorText(ProgramError::DiskFull), "Disk full (61).");
  EXPECT_EQ(ErrorText(ProgramError::InputPastEnd), "Input past end of file (62).");
  EXPECT_EQ(ErrorText(ProgramError::PermissionDenied), "Permission denied (70).");
  EXPECT_EQ(ErrorText(ProgramError::PathFileAccess), "Path/File access error (75).");
  EXPECT_EQ(ErrorText(ProgramError::PathNotFound), "Path not found (76).");
  EXPECT_EQ(ErrorText(ProgramError::Printer), "Printer error (482).");
}

TEST(ErrorFromSystem, NamesWhatTheSystemReports) {
  const auto error = [](int number) { return ErrorFromSystem(number, ProgramError::PathNotFound); };
  EXPECT_EQ(error(ENOSPC), ProgramError::DiskFull);
  EXPECT_EQ(error(EDQUOT), ProgramError::DiskFull);
  EXPECT_EQ(error(EACCES), ProgramError::PermissionDenied);
  EXPECT_EQ(error(EROFS), ProgramError::PermissionDenied);
  EXPECT_EQ(error(EISDIR), ProgramError::PathFileAccess);
  EXPECT_EQ(error(ENAMETOOLONG), ProgramError::BadFileName);
}

TEST(ErrorFromSystem, LeavesItToTheCallerWhatIsMissing) {
  EXPECT_EQ(ErrorFromSystem(ENOENT, ProgramError::FileNotFound), ProgramError::FileNotFound);
  EXPECT_EQ(ErrorFromSystem(ENOENT, ProgramError::PathNotFound), ProgramError::PathNotFound);
}

TEST(ErrorFromSystem, TakesWhatItDoesNotKnowAsAnErrorOfTheDevice) {
  EXPECT_EQ(ErrorFromSystem(EIO, ProgramError::FileNotFound), ProgramError::DeviceIo);
  EXPECT_EQ(ErrorFromSystem(0, ProgramError::FileNotFound), ProgramError::DeviceIo);
}
