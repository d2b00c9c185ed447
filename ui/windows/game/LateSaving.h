#pragma once

#include <QTimer>

#include "app/Globals.h"

// As long as this lives, what has to wait for another copy of the program is saved as soon as that
// lets it, while the window stays awake.
class LateSaving {
 public:
  // globals outlives it.
  explicit LateSaving(Globals& globals);
  ~LateSaving();
  LateSaving(const LateSaving&) = delete;
  LateSaving& operator=(const LateSaving&) = delete;

 private:
  Globals& globals_;
  QTimer timer_;
};
