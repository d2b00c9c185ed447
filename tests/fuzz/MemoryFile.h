#pragma once

#include <cstddef>
#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

#include <QString>

// A file in memory, so that code which reads files by name can be fed without a disk.
class MemoryFile {
 public:
  MemoryFile(const std::uint8_t* data, std::size_t size)
      : descriptor_(memfd_create("fuzz", MFD_CLOEXEC)) {
    if (write(descriptor_, data, size) != static_cast<ssize_t>(size)) __builtin_trap();
  }
  ~MemoryFile() { close(descriptor_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  QString PathName() const { return QString("/proc/self/fd/%1").arg(descriptor_); }

 private:
  int descriptor_;
};
