#pragma once

#include "ui/commands/CommandContext.h"

void mnuEditChessboardOpen_Click(const CommandContext& context);
void mnuEditChessboardSave_Click(const CommandContext& context);
