#include "ui/windows/game/LateSaving.h"

namespace {

constexpr int RetryMilliseconds = 100;

}  // namespace

LateSaving::LateSaving(Globals& globals) : globals_(globals) {
  timer_.setSingleShot(true);
  timer_.setInterval(RetryMilliseconds);
  for (KeptFile* file : {&globals_.IniFile, &globals_.ScoreFile}) {
    file->onWaiting = [this] { timer_.start(); };
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [file] { file->Save(Wait::Not); });
  }
}

LateSaving::~LateSaving() {
  for (KeptFile* file : {&globals_.IniFile, &globals_.ScoreFile}) file->onWaiting = [] {};
}
