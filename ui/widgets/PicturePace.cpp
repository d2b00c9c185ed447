#include "ui/widgets/PicturePace.h"

#include <algorithm>
#include <utility>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <QThread>
#include <QWidget>

using namespace std::chrono_literals;

namespace {

using Time = PicturePace::Time;

// Half a second, less what is left for the last picture.
constexpr Time LongestWalk = 450ms;
// Asking the desktop costs more than a redraw, but nobody notices so short a delay.
constexpr Time BetweenEvents = 1ms;
constexpr double UsualRefreshRate = 60;

Time RefreshOf(const QWidget& widget) {
  const QScreen* screen = widget.screen();
  const double rate = screen != nullptr ? screen->refreshRate() : 0;
  return std::chrono::duration_cast<Time>(1s / (rate >= 1 ? rate : UsualRefreshRate));
}

Time TimeOfStep(int steps) {
  const bool animated = QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
  return animated ? LongestWalk / std::max(steps, 1) : Time(0);
}

int LoopLevel() {
  return QThread::currentThread()->loopLevel();
}

}  // namespace

// A menu or dialog that opens in the middle of the work has a loop of its own, in which nothing
// yields. Whatever is late then is shown before that loop goes to sleep.
PicturePace::PicturePace(Clock clock) : clock_(std::move(clock)) {
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   &beforeSleep_, [this] {
                     if (work_ != nullptr && LoopLevel() > work_->loopLevel_) ShowAll();
                   });
}

Time PicturePace::SteadyTime() {
  return std::chrono::steady_clock::now().time_since_epoch();
}

void PicturePace::ShowDue(Time now) {
  for (PacedPicture* picture : pictures_) {
    if (picture->late_ && now >= picture->next_) picture->Show(now);
  }
}

void PicturePace::ShowAll() {
  const Time now = Now();
  for (PacedPicture* picture : pictures_) {
    if (picture->late_) picture->Show(now);
  }
}

Time PicturePace::NextPicture() const {
  Time next(0);
  for (const PacedPicture* picture : pictures_) next = std::max(next, picture->next_);
  return next;
}

void PicturePace::Complete() {
  ShowAll();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

void PicturePace::Hurry() {
  if (work_ != nullptr) work_->timeOfStep_ = Time(0);
}

PacedPicture::PacedPicture(PicturePace& pace, const QWidget& widget, std::function<void()> show)
    : pace_(pace), widget_(widget), show_(std::move(show)) {
  pace_.pictures_.push_back(this);
}

PacedPicture::~PacedPicture() {
  std::erase(pace_.pictures_, this);
}

void PacedPicture::Changed() {
  late_ = true;
  if (pace_.Work() == nullptr) Show(Time(0));
}

void PacedPicture::Show(Time now) {
  late_ = false;
  next_ = now + RefreshOf(widget_);
  show_();
}

WatchedWork::WatchedWork(PicturePace& pace) : WatchedWork(pace, false, Time(0)) {}

WatchedWork::WatchedWork(PicturePace& pace, int mostSteps)
    : WatchedWork(pace, true, TimeOfStep(mostSteps)) {}

WatchedWork::WatchedWork(PicturePace& pace, bool isWalk, Time timeOfStep)
    : pace_(pace),
      outer_(std::exchange(pace.work_, this)),
      loopLevel_(LoopLevel()),
      isWalk_(isWalk),
      timeOfStep_(timeOfStep) {}

WatchedWork::~WatchedWork() {
  pace_.work_ = outer_;
  pace_.Complete();
}

bool WatchedWork::EndStep(Time now) {
  if (timeOfWalk_ == Time(0)) timeOfWalk_ = now;
  timeOfWalk_ += timeOfStep_;
  return now < timeOfWalk_;
}

bool WatchedWork::IsTimeForEvents(Time now) {
  if (now < nextEvents_) return false;
  nextEvents_ = now + BetweenEvents;
  return true;
}
