#include "ui/windows/game/HalfSecondTimer.h"

#include <utility>

namespace {

constexpr int IntervalMilliseconds = 500;

}  // namespace

HalfSecondTimer::HalfSecondTimer(std::function<void()> tick) : tick_(std::move(tick)) {
  timer_.setInterval(IntervalMilliseconds);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Deliver(); });
}

void HalfSecondTimer::SetEnabled(bool enabled) {
  if (enabled == IsEnabled()) return;
  if (!enabled) {
    timer_.stop();
    return;
  }
  delivered_ = 0;
  sinceEnabled_.start();
  timer_.start();
}

// A tick may stop the timer, or stop it and start it again.
void HalfSecondTimer::Deliver() {
  while (IsEnabled() && delivered_ < sinceEnabled_.elapsed() / IntervalMilliseconds) {
    ++delivered_;
    tick_();
  }
}
