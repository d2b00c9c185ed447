#pragma once

#include <chrono>
#include <functional>
#include <vector>

#include <QObject>

class QWidget;
class PacedPicture;
class WatchedWork;

// Has what changes quickly painted no oftener than a display can show it, and never later than one
// refresh after it has changed.
//
// Pictures are held back only while there is WatchedWork; at any other time a change is painted
// with the next events.
class PicturePace {
 public:
  using Time = std::chrono::nanoseconds;
  // Gives a time that never goes back.
  using Clock = std::function<Time()>;

  explicit PicturePace(Clock clock = SteadyTime);
  PicturePace(const PicturePace&) = delete;
  PicturePace& operator=(const PicturePace&) = delete;

  Time Now() const { return clock_(); }
  // The innermost work that the player watches, if there is any.
  WatchedWork* Work() const { return work_; }

  // Has the pictures that have changed, and whose display is ready for it, painted with the next
  // events.
  void ShowDue(Time now);
  // When every display is ready for another picture.
  Time NextPicture() const;
  // Brings all that has changed onto the screen before it returns.
  void Complete();
  // Nobody waits to see the rest of a walk.
  void Hurry();

  static Time SteadyTime();

 private:
  friend class PacedPicture;
  friend class WatchedWork;

  void ShowAll();

  Clock clock_;
  std::vector<PacedPicture*> pictures_;
  WatchedWork* work_ = nullptr;
  QObject beforeSleep_;
};

// The picture of a widget that may change quickly.
class PacedPicture {
 public:
  // Pace and widget outlive it. show: has what has changed painted with the next events.
  PacedPicture(PicturePace& pace, const QWidget& widget, std::function<void()> show);
  ~PacedPicture();
  PacedPicture(const PacedPicture&) = delete;
  PacedPicture& operator=(const PacedPicture&) = delete;

  void Changed();

 private:
  friend class PicturePace;

  void Show(PicturePace::Time now);

  PicturePace& pace_;
  const QWidget& widget_;
  std::function<void()> show_;
  bool late_ = false;          // it has changed and is not painted yet
  PicturePace::Time next_{0};  // when its display is ready for another one
};

// A handler that the player watches at work, for the length of a scope: a search, or a walk of the
// knight. It yields through DoEvents.
//
// A search is never waited for. In a walk every step ends with a yield, which lasts until the step
// has been on the screen for one refresh. Where the whole walk would take more than half a second,
// several steps share a picture, and where the style animates nothing, there is no wait.
class WatchedWork {
 public:
  explicit WatchedWork(PicturePace& pace);        // a search
  WatchedWork(PicturePace& pace, int mostSteps);  // a walk
  // Completes the picture.
  ~WatchedWork();
  WatchedWork(const WatchedWork&) = delete;
  WatchedWork& operator=(const WatchedWork&) = delete;

  bool IsWalk() const { return isWalk_; }
  // Counts a step of a walk; true when there is time to look at it.
  bool EndStep(PicturePace::Time now);
  bool IsHurried() const { return timeOfStep_ == PicturePace::Time(0); }
  // Whether a search should see to input, timers and the desktop again; it is taken at its word.
  bool IsTimeForEvents(PicturePace::Time now);

 private:
  friend class PicturePace;

  WatchedWork(PicturePace& pace, bool isWalk, PicturePace::Time timeOfStep);

  PicturePace& pace_;
  WatchedWork* const outer_;
  const int loopLevel_;  // of the event loop that the handler was called from
  const bool isWalk_;
  PicturePace::Time timeOfStep_;
  PicturePace::Time timeOfWalk_{0};  // when the steps made so far should be over
  PicturePace::Time nextEvents_{0};
};
