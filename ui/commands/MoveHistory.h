#pragma once

#include <QStringList>

#include "ui/commands/CommandContext.h"

// Saves the list of moves under a name that the player chooses. An error ends it quietly.
void ExportMoves(const CommandContext& context, const QStringList& lines);

void ReportPrintingFailure(const CommandContext& context);
