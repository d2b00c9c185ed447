// The main window's menu commands: each hands over to the game or to a command of its own.

#include "solver/Autoplay.h"
#include "ui/board/BoardView.h"
#include "ui/commands/ChessboardFiles.h"
#include "ui/commands/CommandHistory.h"
#include "ui/commands/GameFiles.h"
#include "ui/commands/Replay.h"
#include "ui/commands/Solve.h"
#include "ui/windows/game/frmGame.h"

void frmGame::mnuFileNew_Click() {
  game_.mnuFileNew_Click();
}

void frmGame::mnuFileOpen_Click() {
  LoadGame(context_, {.Replaying = false});
}

void frmGame::mnuFileOpenReplay_Click() {
  LoadGame(context_, {.Replaying = true});
}

void frmGame::mnuFileSave_Click() {
  SaveGame(context_);
}

void frmGame::mnuFileSaveReplay_Click() {
  mnuFileSave_Click();
}

void frmGame::mnuFileRestart_Click() {
  game_.mnuFileRestart_Click();
}

void frmGame::mnuFileSolve_Click() {
  ::mnuFileSolve_Click(context_);
}

void frmGame::mnuFileAutoplay_Click() {
  ::mnuFileAutoplay_Click(game_, state_, *this, random_);
}

void frmGame::mnuFileExit_Click() {
  close();
}

void frmGame::mnuEditUndo_Click() {
  game_.mnuEditUndo_Click();
}

void frmGame::mnuEditRedo_Click() {
  game_.mnuEditRedo_Click();
}

void frmGame::mnuEditHistory_Click() {
  ::mnuEditHistory_Click(context_);
}

void frmGame::mnuEditChessboardOpen_Click() {
  ::mnuEditChessboardOpen_Click(context_);
}

void frmGame::mnuEditChessboardSave_Click() {
  ::mnuEditChessboardSave_Click(context_);
}

void frmGame::mnuPrefs_Click() {
  const ClockPause pause(context_);
  windows_.ShowPreferences();
}

void frmGame::mnuViewReplay_Click() {
  ::mnuViewReplay_Click(context_);
}

void frmGame::mnuViewHistory_Click() {
  const ClockPause pause(context_);
  windows_.ShowMoveHistory();
}

void frmGame::mnuViewScore_Click() {
  game_.mnuViewScore_Click();
}

void frmGame::mnuViewTime_Click() {
  game_.mnuViewTime_Click();
}

void frmGame::mnuViewHighScores_Click() {
  const ClockPause pause(context_);
  windows_.ShowScores(ScoreList::High, std::nullopt);
}

void frmGame::mnuViewLowScores_Click() {
  const ClockPause pause(context_);
  windows_.ShowScores(ScoreList::Low, std::nullopt);
}

void frmGame::mnuHelpContents_Click() {
  GetHelp(QString());
}

void frmGame::mnuHelpHowToPlay_Click() {
  GetHelp("How to Play");
}

void frmGame::mnuHelpAbout_Click() {
  const ClockPause pause(context_);
  windows_.ShowAbout();
}
