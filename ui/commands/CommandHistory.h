#pragma once

#include "ui/commands/CommandContext.h"

void mnuEditHistory_Click(const CommandContext& context);
