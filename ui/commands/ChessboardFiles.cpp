#include "ui/commands/ChessboardFiles.h"

void mnuEditChessboardOpen_Click(const CommandContext&) {}

void mnuEditChessboardSave_Click(const CommandContext&) {}
