#include "ui/board/BoardAnnouncer.h"

#include <utility>

#include "ui/board/AccessibleBoard.h"
#include "ui/board/BoardView.h"

void BoardAnnouncer::Announce() {
  if (!QAccessible::isActive() || !view_.hasFocus()) return;
  for (int square = 0; square < SquareCount; ++square) {
    const std::string_view description = DescribeSquare(view_.State(), square);
    std::string_view& told = descriptions_[static_cast<std::size_t>(square)];
    if (std::exchange(told, description) != description) {
      Send(QAccessible::DescriptionChanged, square);
    }
  }
  const int square = view_.SquareOfInterest();
  if (std::exchange(square_, square) != square && square != -1) Send(QAccessible::Focus, square);
}

void BoardAnnouncer::AnnounceAgain() {
  square_ = -1;
  Announce();
}

void BoardAnnouncer::Send(QAccessible::Event type, int square) {
  QAccessibleEvent event(&view_, type);
  event.setChild(AccessibleBoard::ChildOfSquare(square));
  QAccessible::updateAccessibility(&event);
}
