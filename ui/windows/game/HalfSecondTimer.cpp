#include "ui/windows/game/HalfSecondTimer.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::int64_t HalfSecond = 500;  // milliseconds

std::int64_t SteadyMilliseconds() {
  using std::chrono::milliseconds;
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<milliseconds>(now).count();
}

}  // namespace

HalfSecondTimer::HalfSecondTimer(std::function<void()> tick)
    : HalfSecondTimer(std::move(tick), SteadyMilliseconds) {}

HalfSecondTimer::HalfSecondTimer(std::function<void()> tick, SteadyClock clock)
    : tick_(std::move(tick)), clock_(std::move(clock)) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { CountDueTicks(); });
}

void HalfSecondTimer::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  if (enabled) {
    halfSecondBegan_ = clock_() - kept_;
    enabled_ = true;
    AskToBeWoken();
    return;
  }
  CountDueTicks();
  if (!enabled_) return;  // by a tick
  kept_ = std::min(Passed(), HalfSecond - 1);
  enabled_ = false;
  timer_.stop();
}

void HalfSecondTimer::BeginAnew() {
  kept_ = 0;
  halfSecondBegan_ = clock_();
  if (enabled_) AskToBeWoken();
}

// A tick may disable the timer, or disable it and enable it again.
void HalfSecondTimer::CountDueTicks() {
  while (enabled_ && Passed() >= HalfSecond) {
    halfSecondBegan_ += HalfSecond;
    tick_();
  }
  if (enabled_) AskToBeWoken();
}

void HalfSecondTimer::AskToBeWoken() {
  timer_.start(std::chrono::milliseconds(std::max<std::int64_t>(HalfSecond - Passed(), 0)));
}
