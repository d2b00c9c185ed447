#pragma once

#include <cstdint>
#include <string>

// H:MM:SS.T for a count of half-seconds; hours have as many digits as they need.
std::string TimeString(std::int32_t halfSeconds);
