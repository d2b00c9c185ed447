#include <limits>
#include <utility>

#include "core/Game.h"
#include "core/NumberText.h"
#include "core/TimeString.h"

void Game::tmrTime_Timer() {
  if (state_.ElapsedHalfSeconds < std::numeric_limits<std::int32_t>::max()) {
    ++state_.ElapsedHalfSeconds;
  }
  if (options_.ShowTime) DoCaption();
}

void Game::DoCaption() {
  if (state_.SolverRunning) return;
  std::string caption = "Gallopade Nova";
  if (options_.ShowScore) caption.append(":").append(NumberText(state_.MoveCount));
  if (options_.ShowTime) {
    caption.append(" - ").append(TimeString(state_.ElapsedHalfSeconds));
  }
  if (caption == caption_) return;
  window_.SetCaption(caption);
  caption_ = std::move(caption);
}

bool Game::DoTiming() {
  const bool wasRunning = window_.IsClockEnabled();
  window_.EnableClock(false);
  return wasRunning;
}

// The tick brings the count to 0 and the caption with it.
void Game::ResetClock() {
  state_.ElapsedHalfSeconds = -1;
  tmrTime_Timer();
  window_.EnableClock(false);
}

void Game::ClockOnResize(bool minimised, bool resting) {
  if (minimised || state_.ApplyingMoves) {
    window_.EnableClock(false);
    return;
  }
  const int movesBeforePlay = state_.GameStartingPosition == FirstSquare::PlayersChoice ? 0 : 1;
  const bool playing =
      state_.MoveCount != movesBeforePlay && !CheckIfGameOver(state_.KnightX, state_.KnightY);
  if (playing && !resting) window_.EnableClock(true);
}

void Game::mnuViewScore_Click() {
  options_.ShowScore = !options_.ShowScore;
  window_.SetMenuChecked(MenuEntry::mnuViewScore, options_.ShowScore);
  DoCaption();
}

void Game::mnuViewTime_Click() {
  options_.ShowTime = !options_.ShowTime;
  window_.SetMenuChecked(MenuEntry::mnuViewTime, options_.ShowTime);
  DoCaption();
}
