#include "ui/board/BoardAnnouncer.h"

#include <utility>

#include "core/GameState.h"
#include "ui/board/AccessibleBoard.h"
#include "ui/board/BoardView.h"

BoardAnnouncer::BoardAnnouncer(BoardView& view) : view_(view), news_(view.State()) {
  afterFocus_.setSingleShot(true);
  afterFocus_.callOnTimeout([this] { Tell(); });
}

void BoardAnnouncer::EndCommand() {
  --commands_;
  Tell();
}

// Later: a screen reader forgets what comes before Qt's own word about the focus.
void BoardAnnouncer::FocusIn() {
  news_.ComeBack();
  afterFocus_.start(0);
}

void BoardAnnouncer::Tell() {
  if (!QAccessible::isActive() || commands_ > 0 || !view_.hasFocus()) return;
  if (const auto sentence = news_.Take()) {
    AccessibleBoard::Of(view_).LeadTo(*sentence);
    // Its square is described anew, though a move that was taken back may have left it as it was.
    if (sentence->square != -1) descriptions_[static_cast<std::size_t>(sentence->square)] = {};
  }
  DescribeSquares();
}

// After the sentence, which shall not wait for them.
void BoardAnnouncer::DescribeSquares() {
  for (int square = 0; square < SquareCount; ++square) {
    const std::string_view description = DescribeSquare(view_.State(), square);
    std::string_view& told = descriptions_[static_cast<std::size_t>(square)];
    if (std::exchange(told, description) == description) continue;
    QAccessibleEvent event(&view_, QAccessible::DescriptionChanged);
    event.setChild(AccessibleBoard::ChildOfSquare(square));
    QAccessible::updateAccessibility(&event);
  }
}
