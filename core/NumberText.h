#pragma once

#include <cstdint>
#include <string>

// A number as the program shows it where a blank takes the place of a missing sign: " 12", "-3".
inline std::string NumberText(std::int64_t number) {
  const std::string digits = std::to_string(number);
  return number < 0 ? digits : ' ' + digits;
}
