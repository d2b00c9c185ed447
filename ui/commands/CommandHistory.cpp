#include "ui/commands/CommandHistory.h"

void mnuEditHistory_Click(const CommandContext&) {}
