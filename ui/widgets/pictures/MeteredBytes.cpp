#include "ui/widgets/pictures/MeteredBytes.h"

#include <algorithm>
#include <utility>

MeteredBytes::MeteredBytes(QByteArray bytes, std::clock_t until)
    : bytes_(std::move(bytes)), until_(until) {
  QIODevice::open(QIODevice::ReadOnly);
}

bool MeteredBytes::seek(qint64 place) {
  if (place > size()) return false;
  place_ = place;
  return QIODevice::seek(place);
}

qint64 MeteredBytes::readData(char* data, qint64 maximumSize) {
  isStopped_ = isStopped_ || std::clock() >= until_;
  if (isStopped_) return -1;
  const qint64 now = std::min(maximumSize, size() - place_);
  std::copy_n(bytes_.cbegin() + place_, now, data);
  place_ += now;
  return now;
}
