#include "core/Game.h"
#include "core/Menus.h"

bool Game::GameInProgress() const {
  if (CheckIfGameOver(state_.KnightX, state_.KnightY)) return false;
  return state_.MoveCount > 1 ||
         (state_.GameStartingPosition == FirstSquare::PlayersChoice && state_.MoveCount != 0);
}

void Game::Form_Load(const std::function<void()>& setUp) {
  {
    const ApplyingMovesScope applying(state_);
    state_.SolverRunning = false;
    state_.NoScoreGame = false;
    state_.MoveCount = 0;
    for (std::size_t row = 0; row < SquareCount; ++row) state_.MoveList[row] = EmptyMove;
    setUp();
    SetupFirstMove();
    window_.RestoreColors();
    ResetClock();
    SwitchMenus(window_, MenuChange::NothingToRedo);
    SwitchMenus(window_, MenuChange::FreshGame);
    state_.GameStartingPosition = options_.StartingPosition;
    PlaceCursorOfFreshGame();
  }
  RefreshHighlight();
  window_.RestoreColors();
  DoCaption();
}

std::optional<std::string> GameFileOf(std::string_view commandLine) {
  constexpr std::size_t endingLength = 7;
  if (commandLine.size() <= endingLength) return std::nullopt;
  if (commandLine.ends_with(".knight")) return std::string(commandLine);
  if (!commandLine.ends_with("knight\"")) return std::nullopt;
  return std::string(commandLine.substr(1, commandLine.size() - 2));
}

bool Game::Form_Unload() {
  if (GameInProgress()) {
    const bool wasRunning = DoTiming();
    if (!window_.Ask("Exit?", "Your current game is not finished. Do you really want to exit?")) {
      window_.EnableClock(wasRunning);
      return false;
    }
  }
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
  ClearBoard();
  SetupFirstMove();
  window_.RestoreColors();
  PlaceCursorOfFreshGame();
  ResetClock();
  DoCaption();
  SwitchMenus(window_, MenuChange::FreshGame);
}

void Game::ClearBoard() {
  ClearRedo();
  state_.MoveCount = 0;
  state_.Board.fill(GameState::Unvisited);
  // Row 64 stays as it is.
  for (std::size_t row = 0; row < SquareCount; ++row) state_.MoveList[row] = EmptyMove;
}

// The board is seen filling; whoever wants to close the window need not wait for it.
void Game::OpenSavedGame(const SavedGame& saved) {
  ++state_.GameSerial;
  ClearBoard();
  state_.GameStartingPosition = FirstSquare::Stored;
  state_.FirstMoveMade = true;

  const WorkScope work(window_.Guard());
  const ApplyingMovesScope applying(state_);
  if (saved.elapsedHalfSeconds) {
    state_.ElapsedHalfSeconds = *saved.elapsedHalfSeconds - 1;
    tmrTime_Timer();
    state_.NoScoreGame = saved.noScoreGame;
  }
  for (const MoveRow& move : saved.moves) {
    ValidMove(move.x, move.y);
    if (!window_.Guard().IsCloseRequested()) window_.DoEvents();
  }
  state_.CursorX = state_.KnightX;
  state_.CursorY = state_.KnightY;
}

void Game::PlaceCursorOfFreshGame() {
  const bool playerPicksFirstSquare = state_.GameStartingPosition == FirstSquare::PlayersChoice;
  state_.CursorX = playerPicksFirstSquare ? std::int16_t{-1} : state_.KnightX;
  state_.CursorY = playerPicksFirstSquare ? std::int16_t{-1} : state_.KnightY;
}

void Game::mnuFileRestart_Click() {
  if (MayRestart()) Restart();
}

bool Game::MayRestart() {
  const bool wasRunning = DoTiming();
  if (state_.ApplyingMoves ||
      window_.Ask("Restart?", "Are you sure you want to restart this game?")) {
    return true;
  }
  window_.EnableClock(wasRunning);
  return false;
}

void Game::Restart() {
  RewindToFirstSquare();
  SwitchMenus(window_, MenuChange::FreshGame);
  if (state_.ApplyingMoves) return;
  ClearRedo();
  state_.NoScoreGame = false;
  state_.ElapsedHalfSeconds = 0;
}

// The player sees the tour rewind; whoever wants to close the window need not wait for it.
void Game::RewindToFirstSquare() {
  const WorkScope work(window_.Guard());
  for (int undos = state_.MoveCount - 1; undos > 0; --undos) {
    mnuEditUndo_Click();
    if (!window_.Guard().IsCloseRequested()) window_.DoEvents();
  }
}

void Game::GoOnOrFinish() {
  if (CheckIfGameOver(state_.KnightX, state_.KnightY)) {
    SwitchMenus(window_, MenuChange::FinishedGame);
    return;
  }
  window_.EnableClock(true);
  SwitchMenus(window_, MenuChange::GameGoesOn);
}
