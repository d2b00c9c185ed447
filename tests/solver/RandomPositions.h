#pragma once

#include <random>
#include <vector>

#include "core/GameState.h"

// A random walk of the knight over this many squares.
std::vector<MoveRow> RandomWalk(std::mt19937& random, std::size_t least, std::size_t most);

// What a game file may say: such a walk, with some of its squares named once more.
std::vector<MoveRow> FileWithSquaresNamedTwice(std::mt19937& random);
