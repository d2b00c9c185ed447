#pragma once

#include <array>
#include <functional>

#include <QSocketNotifier>

// Ends that come from outside while nobody can be asked: SIGTERM, SIGHUP and SIGINT, which are
// acted on as soon as events run, in a dialog or a search too; and a display that goes away, at
// which Qt ends the program on the spot. Nothing below on the stack is gone through again, so that
// no dialog there asks or does anything more. A signal that comes again ends the program at once if
// it has not obeyed the first for some seconds. At most one at a time.
class OutsideEnd {
 public:
  // leave keeps what is to be kept. It is called once at most, asks nothing, and needs no display.
  explicit OutsideEnd(std::function<void()> leave);
  ~OutsideEnd();
  OutsideEnd(const OutsideEnd&) = delete;
  OutsideEnd& operator=(const OutsideEnd&) = delete;

 private:
  // The ends of a pipe, through which a signal becomes an event.
  struct Pipe {
    Pipe();
    ~Pipe();
    std::array<int, 2> ends{-1, -1};
  };

  static void LeaveAtExit();
  void Leave();
  void SignalCame();

  std::function<void()> leave_;
  Pipe pipe_;
  QSocketNotifier notifier_;
};
