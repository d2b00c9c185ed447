#include "core/TimeString.h"

namespace {

std::string TwoDigits(std::int32_t number) {
  const std::string text = std::to_string(number);
  return text.size() == 1 ? "0" + text : text;
}

}  // namespace

std::string TimeString(std::int32_t halfSeconds) {
  const std::int32_t hours = halfSeconds / 7200;
  const std::int32_t minutes = halfSeconds / 120 - hours * 60;
  const std::int32_t seconds = halfSeconds / 2 - (halfSeconds / 120) * 60;
  const std::int32_t tenths = (halfSeconds % 2) * 5;
  return std::to_string(hours) + ":" + TwoDigits(minutes) + ":" + TwoDigits(seconds) + "." +
         std::to_string(tenths);
}
