#pragma once

#include <array>
#include <string_view>

#include <QTimer>

#include "core/Square.h"
#include "ui/application/ReaderCursor.h"
#include "ui/board/BoardNews.h"

class BoardView;

// Tells a screen reader the news of the board: once for each command of the player, when it is
// over, and when the keyboard comes back to the board. While the board has not got the keyboard
// nothing is told, and without a screen reader nothing is computed.
class BoardAnnouncer {
 public:
  // The view outlives the announcer.
  explicit BoardAnnouncer(BoardView& view);

  BoardNews& News() { return news_; }

  // From the beginning of a command to its end, whatever it shows meanwhile.
  void BeginCommand() { ++commands_; }
  void EndCommand();
  // The keyboard has come to the board.
  void FocusIn();
  // A key asked for a command that cannot be given now.
  void Refuse(const QString& command);

 private:
  void Tell();
  void LeadTo(const Sentence& sentence);
  void DescribeSquares();

  BoardView& view_;
  BoardNews news_;
  ReaderCursor cursor_;
  QTimer afterFocus_;
  int commands_ = 0;
  std::array<std::string_view, SquareCount> descriptions_{};
};
