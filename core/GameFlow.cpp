#include "core/Game.h"

bool Game::GameInProgress() const {
  if (CheckIfGameOver(state_.KnightX, state_.KnightY)) return false;
  return state_.MoveCount > 1 || (state_.GameStartingPosition == 1 && state_.MoveCount != 0);
}

void Game::Form_Load(const std::string& commandLine) {
  state_.ApplyingMoves = true;
  state_.SolverRunning = false;
  state_.NoScoreGame = false;
  state_.MoveCount = 0;
  for (std::size_t row = 0; row < SquareCount; ++row) state_.MoveList[row] = EmptyMove;

  window_.OpenSettingsAndPlaceWindow();
  window_.CreateBoard();
  window_.LoadGameSetup();
  SetupFirstMove();
  window_.RestoreColors(-1, -1);
  ResetClock();
  window_.SetMenuEnabled(MenuEntry::mnuEditRedo, false);
  SetMenusOfFreshGame();
  state_.GameStartingPosition = options_.StartingPosition;
  PlaceCursorOfFreshGame();
  state_.ApplyingMoves = false;
  pctGrid_MouseMove(SquareIndex(state_.CursorX, state_.CursorY), 0);
  window_.RestoreColors(-1, -1);
  DoCaption();
  OpenCommandLineGame(commandLine);
}

// Only these two endings name a game file; the second is a name that came with its quotes.
void Game::OpenCommandLineGame(const std::string& commandLine) {
  constexpr std::size_t endingLength = 7;
  if (commandLine.size() <= endingLength) return;
  window_.ShowWindow();
  if (commandLine.ends_with(".knight")) {
    window_.OpenGameFile(commandLine);
  } else if (commandLine.ends_with("knight\"")) {
    window_.OpenGameFile(commandLine.substr(1, commandLine.size() - 2));
  }
}

bool Game::Form_Unload() {
  if (GameInProgress()) {
    const bool wasRunning = DoTiming();
    if (!window_.Ask("Exit?", "Your current game is not finished. Do you really want to exit?")) {
      window_.EnableClock(wasRunning);
      return false;
    }
  }
  window_.SaveSettings();
  return true;
}

void Game::mnuFileNew_Click() {
  const bool wasRunning = DoTiming();
  if (GameInProgress() &&
      !window_.Ask("New Game?",
                   "Your current game is not finished. Do you want to start a new game?")) {
    window_.EnableClock(wasRunning);
    return;
  }
  StartNewGame();
}

void Game::StartNewGame() {
  ++state_.GameSerial;
  state_.NoScoreGame = false;
  state_.GameStartingPosition = options_.StartingPosition;
  ClearRedo();
  state_.MoveCount = 0;
  for (int x = 0; x < BoardSide; ++x) {
    for (int y = 0; y < BoardSide; ++y) {
      state_.MoveList[static_cast<std::size_t>(SquareIndex(x, y))] = EmptyMove;
      state_.Cell(x, y) = GameState::Unvisited;
    }
  }
  SetupFirstMove();
  window_.RestoreColors(-1, -1);
  PlaceCursorOfFreshGame();
  ResetClock();
  DoCaption();
  SetMenusOfFreshGame();
}

void Game::SetMenusOfFreshGame() {
  for (const MenuEntry entry :
       {MenuEntry::mnuEditUndo, MenuEntry::mnuViewHistory, MenuEntry::mnuEditHistory,
        MenuEntry::mnuFileRestart, MenuEntry::mnuViewReplay, MenuEntry::mnuFileSave,
        MenuEntry::mnuFileSaveReplay}) {
    window_.SetMenuEnabled(entry, false);
  }
  window_.SetMenuEnabled(MenuEntry::mnuFileAutoplay, true);
  window_.SetMenuEnabled(MenuEntry::mnuFileSolve, true);
}

void Game::PlaceCursorOfFreshGame() {
  const bool playerPicksFirstSquare = state_.GameStartingPosition == 1;
  state_.CursorX = playerPicksFirstSquare ? std::int16_t{-1} : state_.KnightX;
  state_.CursorY = playerPicksFirstSquare ? std::int16_t{-1} : state_.KnightY;
}

void Game::mnuFileRestart_Click() {
  const bool wasRunning = DoTiming();
  if (!state_.ApplyingMoves &&
      !window_.Ask("Restart?", "Are you sure you want to restart this game?")) {
    window_.EnableClock(wasRunning);
    return;
  }
  RewindToFirstSquare();
  SetMenusOfFreshGame();
  if (state_.ApplyingMoves) return;
  ClearRedo();
  state_.NoScoreGame = false;
  state_.ElapsedHalfSeconds = 0;
}

// The player sees the tour rewind; whoever wants to close the window need not wait for it.
void Game::RewindToFirstSquare() {
  const WorkScope work(window_);
  for (int undos = state_.MoveCount - 1; undos > 0; --undos) {
    mnuEditUndo_Click();
    if (!window_.IsCloseRequested()) window_.DoEvents();
  }
}

void Game::DisablePlayOn() {
  window_.SetMenuEnabled(MenuEntry::mnuFileSave, false);
  window_.SetMenuEnabled(MenuEntry::mnuFileSaveReplay, true);
  window_.SetMenuEnabled(MenuEntry::mnuFileAutoplay, false);
  window_.SetMenuEnabled(MenuEntry::mnuFileSolve, false);
}

void Game::GoOnOrFinish() {
  if (CheckIfGameOver(state_.KnightX, state_.KnightY)) {
    DisablePlayOn();
    return;
  }
  window_.EnableClock(true);
  window_.SetMenuEnabled(MenuEntry::mnuFileSave, true);
  window_.SetMenuEnabled(MenuEntry::mnuFileSaveReplay, false);
  window_.SetMenuEnabled(MenuEntry::mnuFileAutoplay, true);
  window_.SetMenuEnabled(MenuEntry::mnuFileSolve, true);
}
