#pragma once

#include <functional>
#include <utility>

#include <QAccessibleTextInterface>
#include <QRect>

// A text that a screen reader can read on by itself, from its beginning.
class SpokenText : public QAccessibleTextInterface {
 public:
  // goTo: takes the player to a place of the text, where the reader has been stopped. rect: where
  // the text lies on the screen.
  SpokenText(const QString& text, std::function<void(int)> goTo, const QRect& rect = {})
      : text_(text), goTo_(std::move(goTo)), rect_(rect) {}

  QString text(int start, int end) const override { return text_.mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(text_.size()); }
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int position) override { goTo_(position); }

  int selectionCount() const override { return 0; }
  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}

  QRect characterRect(int) const override { return rect_; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

 private:
  QString text_;
  std::function<void(int)> goTo_;
  QRect rect_;
};
