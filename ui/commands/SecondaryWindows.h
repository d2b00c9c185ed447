#pragma once

#include <optional>

#include <QString>

#include "core/GameWindow.h"
#include "storage/ScoreLists.h"

enum class GameOverAnswer { MainButton, Undo };
enum class ScoresAnswer { Close, NewGame, Replay };

// The program's other windows, each shown modally: a call returns when its window is closed.
class SecondaryWindows {
 public:
  SecondaryWindows() = default;
  SecondaryWindows(const SecondaryWindows&) = delete;
  SecondaryWindows& operator=(const SecondaryWindows&) = delete;
  virtual ~SecondaryWindows() = default;

  virtual void ShowSolve(int startMove) = 0;
  virtual void ShowReplay(int total) = 0;
  virtual void ShowMoveHistory() = 0;
  virtual void ShowCommandHistory() = 0;
  virtual void ShowWin() = 0;
  virtual GameOverAnswer ShowGameOver(const GameOverReport& report) = 0;
  // finished: the game offered to the list; its name is asked for if it ranks.
  virtual ScoresAnswer ShowScores(ScoreList list, std::optional<FinishedGame> finished) = 0;
  virtual void ShowPreferences() = 0;
  virtual void ShowAbout() = 0;
  // Opens the help at a keyword, or at its contents when the topic is empty; the only window here
  // that stays open beside the others.
  virtual void ShowHelp(const QString& topic) = 0;
};
