#pragma once

#include "ui/commands/CommandContext.h"

// The commands of the main window's menu that hand over at once: to the game, to another window, or
// to the help. Those with a flow of their own have files of their own.

void mnuFileNew_Click(const CommandContext& context);
void mnuFileRestart_Click(const CommandContext& context);
void mnuFileAutoplay_Click(const CommandContext& context);
void mnuFileExit_Click(const CommandContext& context);

void mnuEditUndo_Click(const CommandContext& context);
void mnuEditRedo_Click(const CommandContext& context);
void mnuPrefs_Click(const CommandContext& context);

void mnuViewHistory_Click(const CommandContext& context);
void mnuViewScore_Click(const CommandContext& context);
void mnuViewTime_Click(const CommandContext& context);
void mnuViewHighScores_Click(const CommandContext& context);
void mnuViewLowScores_Click(const CommandContext& context);

void mnuHelpContents_Click(const CommandContext& context);
void mnuHelpHowToPlay_Click(const CommandContext& context);
void mnuHelpAbout_Click(const CommandContext& context);
