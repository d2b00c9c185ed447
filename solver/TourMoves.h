#pragma once

#include <array>

#include "core/Square.h"

// The order in which the search and autoplay try the knight's moves. It decides which tour is found
// and differs from the order in which the end of a game is looked for.
inline constexpr std::array<Offset, 8> TourMoveOffsets{
    {{+1, +2}, {+2, +1}, {-1, +2}, {-2, +1}, {+1, -2}, {+2, -1}, {-1, -2}, {-2, -1}}};
