#pragma once

#include <cstdint>
#include <functional>

#include <QTimer>

// The clock timer: calls tick once for every half second that passed while it was enabled, counted
// from a steady clock, so that none is lost or doubled while the window is busy. What had passed of
// a half second when it was disabled counts when it is enabled again; enabling it while it is
// enabled changes nothing.
class HalfSecondTimer {
 public:
  // Milliseconds from any beginning; never goes back.
  using SteadyClock = std::function<std::int64_t()>;

  explicit HalfSecondTimer(std::function<void()> tick);
  HalfSecondTimer(std::function<void()> tick, SteadyClock clock);

  // Ticks that are due are counted before it is disabled.
  void SetEnabled(bool enabled);
  bool IsEnabled() const { return enabled_; }
  // The next half second begins now, with nothing due.
  void BeginAnew();
  // Happens by itself when a tick is due and events run.
  void CountDueTicks();

 private:
  std::int64_t Passed() const { return clock_() - halfSecondBegan_; }
  void AskToBeWoken();

  std::function<void()> tick_;
  SteadyClock clock_;
  QTimer timer_;
  bool enabled_ = false;
  std::int64_t halfSecondBegan_ = 0;  // of the clock, while enabled
  std::int64_t kept_ = 0;             // of a half second, while disabled
};
