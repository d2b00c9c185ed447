#include "ui/windows/ScreenWindows.h"

#include "ui/windows/frmGame.h"

void ScreenWindows::ShowSolve(int) {}

void ScreenWindows::ShowReplay(int) {}

void ScreenWindows::ShowMoveHistory() {}

void ScreenWindows::ShowCommandHistory() {}

void ScreenWindows::ShowWin() {}

GameOverAnswer ScreenWindows::ShowGameOver(const GameOverReport&) {
  return GameOverAnswer::Undo;
}

ScoresAnswer ScreenWindows::ShowScores(ScoreList, std::optional<FinishedGame>) {
  return ScoresAnswer::Close;
}

void ScreenWindows::ShowPreferences() {}

void ScreenWindows::ShowAbout() {}
