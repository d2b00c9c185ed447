#pragma once

#include "ui/commands/CommandContext.h"

void mnuFileSolve_Click(const CommandContext& context);
