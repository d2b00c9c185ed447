#pragma once

#include <random>
#include <vector>

#include "core/GameState.h"

// A random walk of the knight over this many squares.
std::vector<MoveRow> RandomWalk(std::mt19937& random, std::size_t least, std::size_t most);
