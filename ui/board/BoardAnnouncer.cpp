#include "ui/board/BoardAnnouncer.h"

#include <utility>

#include "core/GameState.h"
#include "ui/board/AccessibleBoard.h"
#include "ui/board/BoardView.h"

BoardAnnouncer::BoardAnnouncer(BoardView& view) : view_(view), news_(view.State()), cursor_(view) {
  afterFocus_.setSingleShot(true);
  afterFocus_.callOnTimeout([this] { Tell(); });
}

void BoardAnnouncer::EndCommand() {
  --commands_;
  Tell();
}

// Later: what a closing dialog leads to may be news.
void BoardAnnouncer::FocusIn() {
  news_.ComeBack();
  afterFocus_.start(0);
}

void BoardAnnouncer::Tell() {
  if (!QAccessible::isActive() || commands_ > 0 || !view_.hasFocus()) return;
  if (const auto sentence = news_.Take()) {
    LeadTo(*sentence);
    // Its square is described anew, though a move that was taken back may have left it as it was.
    if (sentence->square != -1) descriptions_[static_cast<std::size_t>(sentence->square)] = {};
  }
  DescribeSquares();
}

// A sentence about no square is about the whole board.
void BoardAnnouncer::LeadTo(const Sentence& sentence) {
  const bool isOfSquare = sentence.square != -1;
  cursor_.LeadTo(isOfSquare ? view_.SquareRectangle(sentence.square) : view_.rect(),
                 QString::fromStdString(sentence.text));
}

void BoardAnnouncer::Refuse(const QString& command) {
  LeadTo({SquareOfInterest(view_.State()), command.toStdString() + " is not possible now"});
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
