#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/GameState.h"
#include "core/GameWindow.h"
#include "core/Random.h"

// What a game file tells up to its end, or up to where it could not be read any further.
struct SavedGame {
  std::optional<std::int32_t> elapsedHalfSeconds;  // none: not even the clock could be read
  bool noScoreGame = false;
  std::span<const MoveRow> moves;  // squares of the board, at most 64; perhaps not knight's moves
};

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
  // What a move and its undo do to the game alone. Nobody sees or hears of it, and the menu stays
  // as it is: for work that ends with a move or an undo of the whole kind. There is a move to take
  // back besides the first, and room for another.
  void MoveUnseen(int x, int y);
  void TakeBackUnseen();
  void SetupFirstMove();
  void MakeRandomStartingMove();
  // Any index but 0..63 is ignored by these two.
  void pctGrid_Click(int index);
  // button -1 forces the highlight, as a step of the keyboard cursor does.
  void pctGrid_MouseMove(int index, int button);
  // Highlights anew at the cursor.
  void RefreshHighlight();
  // Gives every square the highlight once and then its own look, so that each colour and picture is
  // assigned afresh. The cursor stays where it is.
  void RepaintWholeBoard();
  // keyCode: a Windows virtual-key code.
  void pctGrid_KeyDown(int keyCode);

  // --- Flow ---
  bool GameInProgress() const;
  // Start-up. setUp places the window, makes the board and reads the settings; the first square is
  // taken after it.
  void Form_Load(const std::function<void()>& setUp);
  // Asks before a game in progress is left; false when the player chose to stay.
  bool Form_Unload();
  void mnuFileNew_Click();
  // A new game without any question.
  void StartNewGame();
  void mnuFileRestart_Click();
  // The question before a player's Restart, and what follows if he says Yes.
  bool MayRestart();
  void Restart();
  // Leaves the present game for one from a file, whose moves are seen being made, untested.
  void OpenSavedGame(const SavedGame& saved);
  // The game may not enter the score lists.
  void ExcludeFromScores() { state_.NoScoreGame = true; }
  // Sets clock and menus after a command that made moves by itself: a finished game can only be
  // replayed, any other is played on.
  void GoOnOrFinish();

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
  void PlaceKnight(MoveRow move);
  void ListMove(MoveRow move);
  void AnnounceEnd();
  void RewindToFirstSquare();
  void ClearBoard();
  void PlaceCursorOfFreshGame();
  void MoveCursor(int keyCode);
  void ClickOnCursor();

  GameState& state_;
  GameOptions& options_;
  GameWindow& window_;
  Random random_;
  std::string caption_;  // what the window shows
};

// The game file that a command line names, its arguments joined by one blank: one that ends in
// ".knight", or in "knight" and the quotation mark that came with the name.
std::optional<std::string> GameFileOf(std::string_view commandLine);
