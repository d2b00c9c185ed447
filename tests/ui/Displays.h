#pragma once

#include "ui/widgets/PicturePace.h"

// A display that is ready for the next picture whenever it is asked: everything is painted as soon
// as it changes, and no walk is waited for.
inline PicturePace::Clock AlwaysReady() {
  return [time = PicturePace::Time(0)]() mutable { return time += std::chrono::seconds(1); };
}
