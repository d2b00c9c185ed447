#include "ui/commands/Solve.h"

void mnuFileSolve_Click(const CommandContext&) {}
