#pragma once

#include <cstdint>
#include <string>

#include "core/GameState.h"
#include "core/GameWindow.h"
#include "core/Random.h"

// The rules and the flow of one game, written against the window's seam.
class Game {
 public:
  // All three references outlive the game.
  Game(GameState& state, GameOptions& options, GameWindow& window)
      : state_(state), options_(options), window_(window) {}

  // --- Moves ---
  // True when none of the eight squares a knight's move from (x, y) is free.
  bool CheckIfGameOver(int x, int y) const;
  // A move that the caller knows to be legal, or the first square; (x, y) is a square of the board.
  // Does nothing after 64 moves: whoever makes moves in a loop stops there too.
  void ValidMove(int x, int y);
  void SetupFirstMove();
  void MakeRandomStartingMove();
  // Any index but 0..63 is ignored by these two.
  void pctGrid_Click(int index);
  // button -1 forces the highlight, as a step of the keyboard cursor does.
  void pctGrid_MouseMove(int index, int button);
  // keyCode: a Windows virtual-key code.
  void pctGrid_KeyDown(int keyCode);

  // --- Flow ---
  bool GameInProgress() const;
  // commandLine: the program's arguments joined by one blank.
  void Form_Load(const std::string& commandLine);
  // False when the player chose to stay.
  bool Form_Unload();
  void mnuFileNew_Click();
  // A new game without any question.
  void StartNewGame();
  void mnuFileRestart_Click();
  // Sets clock and menus after a command that made moves by itself: a finished game can only be
  // replayed, any other is played on.
  void GoOnOrFinish();
  // A finished game: it can be saved as a replay, but neither saved nor played on.
  void DisablePlayOn();

  // --- Undo and redo ---
  void mnuEditUndo_Click();
  void mnuEditRedo_Click();
  void ClearRedo();

  // --- Clock and caption ---
  void tmrTime_Timer();
  void DoCaption();
  // Stops the clock; true when it was running.
  bool DoTiming();
  // What a change of the window's size does to the clock. resting: a dialog is open.
  void ClockOnResize(bool minimised, bool resting);
  void ResetClock();
  void mnuViewScore_Click();
  void mnuViewTime_Click();

 private:
  void AnnounceEnd();
  void RewindToFirstSquare();
  void SetMenusOfFreshGame();
  void PlaceCursorOfFreshGame();
  void OpenCommandLineGame(const std::string& commandLine);
  void MoveCursor(int keyCode);
  void ClickOnCursor();

  GameState& state_;
  GameOptions& options_;
  GameWindow& window_;
  Random random_;
};
