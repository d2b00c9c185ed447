#include "ui/application/OutsideEnd.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array Signals{SIGTERM, SIGHUP, SIGINT};
constexpr time_t SecondsUntilStuck = 5;

// Neither a signal nor exit() brings an object along; both find here what they are about.
OutsideEnd* current = nullptr;
volatile std::sig_atomic_t signalEnd = -1;

std::atomic<time_t> firstSignal{0};
static_assert(std::atomic<time_t>::is_always_lock_free);

// Terminals, and whoever ends a process and its group, send the same signal twice in a breath: the
// second must not end a program that is about to save. Later, it has not obeyed the first.
bool IsStuck() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  time_t first = 0;
  if (firstSignal.compare_exchange_strong(first, now.tv_sec)) return false;
  return now.tv_sec - first >= SecondsUntilStuck;
}

// Does only what may be done in a signal handler.
void PassOn(int signal) {
  const int error = errno;
  const auto number = static_cast<unsigned char>(signal);
  // A pipe that is full has signals enough.
  [[maybe_unused]] const ssize_t written = write(signalEnd, &number, sizeof number);
  if (IsStuck()) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);
  }
  errno = error;
}

// Those that the caller wants ignored, as nohup does, stay so.
void CatchSignals() {
  for (const int signal : Signals) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler != SIG_DFL) continue;
    action.sa_handler = PassOn;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
  }
}

void ReleaseSignals() {
  for (const int signal : Signals) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler == PassOn) std::signal(signal, SIG_DFL);
  }
}

}  // namespace

OutsideEnd::Pipe::Pipe() {
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) ends = {-1, -1};
}

OutsideEnd::Pipe::~Pipe() {
  for (const int end : ends) {
    if (end >= 0) close(end);
  }
}

OutsideEnd::OutsideEnd(std::function<void()> leave)
    : leave_(std::move(leave)), notifier_(pipe_.ends[0], QSocketNotifier::Read) {
  [[maybe_unused]] static const int registered = std::atexit(LeaveAtExit);
  current = this;
  if (pipe_.ends[0] < 0) return;
  signalEnd = pipe_.ends[1];
  QObject::connect(&notifier_, &QSocketNotifier::activated, [this] { SignalCame(); });
  CatchSignals();
}

OutsideEnd::~OutsideEnd() {
  ReleaseSignals();
  signalEnd = -1;
  current = nullptr;
}

void OutsideEnd::LeaveAtExit() {
  if (current != nullptr) current->Leave();
}

void OutsideEnd::Leave() {
  if (const auto leave = std::exchange(leave_, nullptr)) leave();
}

// Ends as if the signal had not been caught, so that whoever sent it sees what it did.
void OutsideEnd::SignalCame() {
  unsigned char number = 0;
  if (read(pipe_.ends[0], &number, sizeof number) != sizeof number) return;
  Leave();
  std::signal(number, SIG_DFL);
  std::raise(number);
}
