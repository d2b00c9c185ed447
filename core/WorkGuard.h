#pragma once

#include <functional>
#include <utility>

// Work that must not be disturbed. While it goes on, everything that the player does is ignored,
// not kept for later; only a request to close the window is remembered, and the work ends early.
class WorkGuard {
 public:
  enum class Change { Began, Ended };

  // changed is called after each beginning and each end of a work.
  explicit WorkGuard(std::function<void(Change)> changed) : changed_(std::move(changed)) {}

  bool IsWorking() const { return works_ > 0; }
  bool IsCloseRequested() const { return closeRequested_; }
  void SetCloseRequested(bool requested) { closeRequested_ = requested; }

 private:
  friend class WorkScope;

  void Begin() {
    ++works_;
    changed_(Change::Began);
  }
  void End() {
    --works_;
    changed_(Change::Ended);
  }

  std::function<void(Change)> changed_;
  int works_ = 0;
  bool closeRequested_ = false;
};

// A work, for the length of a scope.
class WorkScope {
 public:
  explicit WorkScope(WorkGuard& guard) : guard_(guard) { guard_.Begin(); }
  ~WorkScope() { guard_.End(); }
  WorkScope(const WorkScope&) = delete;
  WorkScope& operator=(const WorkScope&) = delete;

 private:
  WorkGuard& guard_;
};
