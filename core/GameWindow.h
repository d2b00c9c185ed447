#pragma once

#include <cstdint>
#include <string>

#include "core/WorkGuard.h"

// The menu entries that the game switches on and off or checks.
enum class MenuEntry {
  mnuFileSave,
  mnuFileRestart,
  mnuFileSolve,
  mnuFileAutoplay,
  mnuFileSaveReplay,
  mnuEditUndo,
  mnuEditRedo,
  mnuEditHistory,
  mnuViewReplay,
  mnuViewHistory,
  mnuViewScore,
  mnuViewTime,
};

inline constexpr int MenuEntryCount = static_cast<int>(MenuEntry::mnuViewTime) + 1;

// What the end of a game hands to the window that announces it.
struct GameOverReport {
  std::string buttonCaption;  // of the main button
  std::string message;
  std::int16_t moveCount;
  std::int32_t elapsedHalfSeconds;
};

enum class MessageIcon { Information, Exclamation };
enum class DefaultAnswer { Yes, No };

// The seam between the game and its window: all that the game asks of the outside.
class GameWindow {
 public:
  GameWindow() = default;
  GameWindow(const GameWindow&) = delete;
  GameWindow& operator=(const GameWindow&) = delete;
  virtual ~GameWindow() = default;

  virtual void SetMenuEnabled(MenuEntry entry, bool enabled) = 0;
  virtual bool IsMenuEnabled(MenuEntry entry) const = 0;
  virtual void SetMenuChecked(MenuEntry entry, bool checked) = 0;

  // Brings every square into the look that the game asks for.
  virtual void RestoreColors() = 0;
  // Highlights a square by the highlighting rules; forced: whatever the method.
  virtual void HighlightSquare(int index, bool forced) = 0;

  virtual void SetCaption(const std::string& caption) = 0;

  // The clock timer, which calls Game::tmrTime_Timer twice a second while it is enabled.
  virtual void EnableClock(bool enabled) = 0;
  virtual bool IsClockEnabled() const = 0;

  // A Yes/No question with a question icon; true for Yes. Closing the box is No.
  virtual bool Ask(const std::string& title, const std::string& text,
                   DefaultAnswer defaultAnswer = DefaultAnswer::Yes) = 0;
  virtual void Tell(const std::string& title, const std::string& text, MessageIcon icon) = 0;

  // Shows the end of the game and acts on what the player decides there.
  virtual void EndGame(const GameOverReport& report) = 0;

  // Lets pending events run.
  virtual void DoEvents() = 0;

  // What keeps the player from disturbing work that is going on.
  virtual WorkGuard& Guard() = 0;
};
