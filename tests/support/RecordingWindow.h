#pragma once

#include <array>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/GameWindow.h"

using Steps = std::vector<std::string>;

enum class PlayerSays { Yes, No };

// The lines in which a recording window writes down what it was asked for.
std::string Line(MenuEntry entry, const std::string& change);
std::string Line(const std::string& title, const std::string& text, DefaultAnswer defaultAnswer);
std::string Line(const std::string& title, const std::string& text, MessageIcon icon);
std::string Line(const GameOverReport& report);

// A window without a window: it writes down each request as one line, keeps the state that a window
// would show, and answers questions as the test has arranged. Seam is GameWindow or an interface
// that extends it.
template <typename Seam>
class Recording : public Seam {
 public:
  Recording() { menuEnabled_.fill(true); }
  ~Recording() override { EXPECT_TRUE(answers.empty()) << "a question was never asked"; }

  Steps log;
  // One for each question, in order. A question without an answer fails the test.
  std::deque<PlayerSays> answers;
  // What happens while the window draws, lets events run or shows the end of a game.
  std::function<void()> onRestoreColors;
  std::function<void()> onDoEvents;
  std::function<void(const GameOverReport&)> onEndGame;

  const std::string& Caption() const { return caption_; }
  bool IsWorking() const { return guard_.IsWorking(); }
  bool IsMenuChecked(MenuEntry entry) const { return menuChecked_[At(entry)]; }

  void SetMenuEnabled(MenuEntry entry, bool enabled) override {
    log.push_back(Line(entry, enabled ? "on" : "off"));
    menuEnabled_[At(entry)] = enabled;
  }
  bool IsMenuEnabled(MenuEntry entry) const override { return menuEnabled_[At(entry)]; }
  void SetMenuChecked(MenuEntry entry, bool checked) override {
    log.push_back(Line(entry, checked ? "checked" : "unchecked"));
    menuChecked_[At(entry)] = checked;
  }

  void RestoreColors() override {
    log.push_back("RestoreColors");
    if (onRestoreColors) onRestoreColors();
  }
  void HighlightSquare(int index, bool forced) override {
    log.push_back("HighlightSquare " + std::to_string(index) + (forced ? " forced" : ""));
  }

  void SetCaption(const std::string& caption) override {
    log.push_back("caption " + caption);
    caption_ = caption;
  }

  void EnableClock(bool enabled) override {
    log.push_back(enabled ? "clock on" : "clock off");
    clockEnabled_ = enabled;
  }
  bool IsClockEnabled() const override { return clockEnabled_; }

  bool Ask(const std::string& title, const std::string& text,
           DefaultAnswer defaultAnswer) override {
    log.push_back(Line(title, text, defaultAnswer));
    if (answers.empty()) {
      ADD_FAILURE() << "an unexpected question: " << log.back();
      return false;
    }
    const PlayerSays answer = answers.front();
    answers.pop_front();
    return answer == PlayerSays::Yes;
  }
  void Tell(const std::string& title, const std::string& text, MessageIcon icon) override {
    log.push_back(Line(title, text, icon));
  }

  void EndGame(const GameOverReport& report) override {
    log.push_back(Line(report));
    if (onEndGame) onEndGame(report);
  }
  void DoEvents() override {
    log.push_back("DoEvents");
    if (onDoEvents) onDoEvents();
  }

  WorkGuard& Guard() override { return guard_; }

 private:
  static std::size_t At(MenuEntry entry) { return static_cast<std::size_t>(entry); }

  std::array<bool, MenuEntryCount> menuEnabled_{};
  std::array<bool, MenuEntryCount> menuChecked_{};
  std::string caption_;
  bool clockEnabled_ = false;
  WorkGuard guard_{[this](WorkGuard::Change change) {
    log.push_back(change == WorkGuard::Change::Began ? "BeginWork" : "EndWork");
  }};
};

using RecordingWindow = Recording<GameWindow>;
