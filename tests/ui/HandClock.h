#pragma once

#include <QTimer>

#include "ui/widgets/PicturePace.h"

// A clock that stands until the test turns it.
class HandClock {
 public:
  // Of the display that the tests have: sixty a second.
  static constexpr PicturePace::Time Refresh{16'666'667};

  PicturePace::Clock Clock() {
    return [this] { return now_; };
  }
  PicturePace::Time Now() const { return now_; }
  void Turn(PicturePace::Time time) { now_ += time; }

 private:
  PicturePace::Time now_ = std::chrono::seconds(1);
};

// A clock that goes on by itself, a little with each turn of an event loop, so that waits come to
// an end in no time.
class LoopClock : public HandClock {
 public:
  static constexpr PicturePace::Time Step = std::chrono::microseconds(100);

  LoopClock() {
    QObject::connect(&turns_, &QTimer::timeout, [this] { Turn(Step); });
    turns_.start(0);
  }

 private:
  QTimer turns_;
};
