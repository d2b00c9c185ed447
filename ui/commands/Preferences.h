#pragma once

#include "ui/commands/CommandContext.h"

// Stores the settings as they are in memory, has them read again, and repaints and lays out the
// board. What changed outside the preferences since the start is stored along, so that reading
// again loses nothing.
void ApplyPreferences(const CommandContext& context);

// Asks, and on Yes brings every setting back to its default. True when it did.
bool RestoreDefaultConfiguration(const CommandContext& context);

// Asks, and on Yes empties both score lists.
void ClearScoreLists(const CommandContext& context);

// Asks for the width of the frame, in pixels, until the answer is a width or nothing.
void AskForFrameWidth(const CommandContext& context);
