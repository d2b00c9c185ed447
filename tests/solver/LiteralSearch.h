#pragma once

#include "solver/TourSolver.h"

// The search as it can be read: a recursion in which every trial move is made and taken back on the
// live game.
bool SolveLiterally(const SolveTask& task);
