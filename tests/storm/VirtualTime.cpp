#include "tests/storm/VirtualTime.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::int64_t NanosecondsOfSecond = 1'000'000'000;
constexpr std::int64_t NanosecondsOfMillisecond = 1'000'000;
constexpr std::int64_t NanosecondsOfLook = 10'000;
constexpr std::int64_t SystemClockAtStart = 1'900'000'000;
constexpr std::int64_t SteadyClockAtStart = 1'000;
constexpr std::size_t KernelSignalSetSize = 8;
constexpr std::int64_t SecondsForChildren = 5;

std::atomic<std::int64_t> nanoseconds = 0;
std::atomic<std::int64_t> waits = 0;

bool IsMainThread() {
  return getpid() == static_cast<pid_t>(syscall(SYS_gettid));
}

int KernelPoll(pollfd* files, nfds_t count, const timespec* timeout, const sigset_t* mask) {
  timespec left = timeout != nullptr ? *timeout : timespec{};
  return static_cast<int>(syscall(SYS_ppoll, files, count, timeout != nullptr ? &left : nullptr,
                                  mask, KernelSignalSetSize));
}

// A command that the program has started takes its time in the real world.
bool HasChildren() {
  siginfo_t info{};
  return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

}  // namespace

// These take the place of the C library's.
extern "C" {

int clock_gettime(clockid_t clock, timespec* time) noexcept {
  const bool isSystemClock = clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE;
  const bool isSteadyClock =
      clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_COARSE || clock == CLOCK_BOOTTIME;
  if (!isSystemClock && !isSteadyClock) {
    return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
  }
  const std::int64_t now = nanoseconds;
  time->tv_sec =
      (isSystemClock ? SystemClockAtStart : SteadyClockAtStart) + now / NanosecondsOfSecond;
  time->tv_nsec = now % NanosecondsOfSecond;
  return 0;
}

int ppoll(pollfd* files, nfds_t count, const timespec* timeout, const sigset_t* mask) {
  if (!IsMainThread()) return KernelPoll(files, count, timeout, mask);
  const bool waiting = timeout == nullptr || timeout->tv_sec > 0 || timeout->tv_nsec > 0;
  const timespec patience{waiting && HasChildren() ? SecondsForChildren : 0, 0};
  const int ready = KernelPoll(files, count, &patience, mask);
  if (ready != 0 || !waiting) {
    nanoseconds += NanosecondsOfMillisecond;
    return ready;
  }
  ++waits;
  if (timeout == nullptr) return KernelPoll(files, count, nullptr, mask);
  nanoseconds += timeout->tv_sec * NanosecondsOfSecond + timeout->tv_nsec;
  return 0;
}

}  // extern "C"

std::int64_t VirtualTime::Milliseconds() {
  return nanoseconds / NanosecondsOfMillisecond;
}

std::chrono::nanoseconds VirtualTime::Look() {
  return std::chrono::nanoseconds(nanoseconds += NanosecondsOfLook);
}

std::int64_t VirtualTime::Waits() {
  return waits;
}

void VirtualTime::JumpTo(std::int64_t milliseconds) {
  nanoseconds = std::max<std::int64_t>(nanoseconds, milliseconds * NanosecondsOfMillisecond);
}

void VirtualTime::Begin() {
  setenv("QT_NO_GLIB", "1", 1);
}
