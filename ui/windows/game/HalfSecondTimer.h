#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QTimer>

// The clock timer: calls tick once for every half second that passed while it was enabled, counted
// from a monotonic clock, so that none is lost or doubled while the window is busy. Enabling it
// while it is enabled does not begin its half second again.
class HalfSecondTimer {
 public:
  explicit HalfSecondTimer(std::function<void()> tick);

  void SetEnabled(bool enabled);
  bool IsEnabled() const { return timer_.isActive(); }

 private:
  void Deliver();

  std::function<void()> tick_;
  QTimer timer_;
  QElapsedTimer sinceEnabled_;
  qint64 delivered_ = 0;  // half-seconds since it was enabled
};
