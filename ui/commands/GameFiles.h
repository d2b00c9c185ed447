#pragma once

#include <QString>

#include "ui/commands/CommandContext.h"

struct LoadRequest {
  bool Replaying = false;  // show the loaded game as a replay
  bool NoCdlog = false;    // open NoCdlogFilename without asking for a file
  QString NoCdlogFilename = QString();
};

// Opens a game file, move by move on the live board. A file that cannot be opened is reported, and
// a new game begins.
void LoadGame(const CommandContext& context, const LoadRequest& request);

void mnuFileOpen_Click(const CommandContext& context);
void mnuFileOpenReplay_Click(const CommandContext& context);

// Saves the game under a name that the player chooses.
void mnuFileSave_Click(const CommandContext& context);
void mnuFileSaveReplay_Click(const CommandContext& context);
