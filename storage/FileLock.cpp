#include "storage/FileLock.h"

#include <chrono>
#include <sys/file.h>
#include <thread>

#include "storage/SystemCalls.h"

namespace {

// Another copy needs it for some milliseconds.
constexpr auto AMoment = std::chrono::seconds(2);
constexpr auto Pause = std::chrono::milliseconds(5);

FileLock LockNow(int descriptor, int wait) {
  if (Persist([&] { return flock(descriptor, LOCK_EX | wait); }) == 0) return FileLock::Taken;
  return errno == EWOULDBLOCK ? FileLock::AnotherHasIt : FileLock::ThereIsNone;
}

}  // namespace

FileLock TakeLock(int descriptor, Wait wait) {
  if (wait == Wait::AsLongAsItTakes) return LockNow(descriptor, 0);
  const auto end = std::chrono::steady_clock::now() + AMoment;
  FileLock lock = LockNow(descriptor, LOCK_NB);
  while (wait == Wait::AMoment && lock == FileLock::AnotherHasIt &&
         std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(Pause);
    lock = LockNow(descriptor, LOCK_NB);
  }
  return lock;
}
