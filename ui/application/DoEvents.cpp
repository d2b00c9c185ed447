#include "ui/application/DoEvents.h"

#include <QCoreApplication>
#include <QTimer>

#include "ui/widgets/PicturePace.h"

namespace {

// A display that is still busy with the picture before shows this one only after a while.
void WaitUntilSeen(PicturePace& pace, const WatchedWork& walk) {
  QTimer alarm;
  alarm.setTimerType(Qt::PreciseTimer);
  while (!walk.IsHurried()) {
    const PicturePace::Time now = pace.Now();
    pace.ShowDue(now);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(pace.NextPicture() - now);
    if (left.count() <= 0) return;
    alarm.start(left);
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

}  // namespace

void DoEvents(PicturePace& pace) {
  WatchedWork* work = pace.Work();
  if (work == nullptr) return QCoreApplication::processEvents();
  const PicturePace::Time now = pace.Now();
  pace.ShowDue(now);
  if (work->IsWalk()) {
    const bool waits = work->EndStep(now);
    QCoreApplication::processEvents();
    if (waits) WaitUntilSeen(pace, *work);
  } else if (work->IsTimeForEvents(now)) {
    QCoreApplication::processEvents();
  } else {
    // What the program has sent itself, pictures among it, runs at every yield.
    QCoreApplication::sendPostedEvents();
  }
}
