#include "ui/board/AccessibleBoard.h"

#include <QApplication>

#include "ui/application/AccessibleFactory.h"
#include "ui/board/BoardView.h"
#include "ui/board/BoardWords.h"

AccessibleBoard::AccessibleBoard(BoardView& view)
    : QAccessibleWidget(&view, QAccessible::Table), view_(view) {}

AccessibleBoard::~AccessibleBoard() {
  for (const QAccessible::Id id : squares_) {
    if (id != 0) QAccessible::deleteAccessibleInterface(id);
  }
}

void AccessibleBoard::Install() {
  InstallAccessible<AccessibleBoard, BoardView>();
}

void* AccessibleBoard::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* AccessibleBoard::child(int number) const {
  if (number < 0 || number >= SquareCount) return nullptr;
  QAccessible::Id& id = squares_[static_cast<std::size_t>(number)];
  if (id == 0) {
    const int index = SquareIndex(number % BoardSide, number / BoardSide);
    id = QAccessible::registerAccessibleInterface(new AccessibleSquare(view_, index));
  }
  return QAccessible::accessibleInterface(id);
}

int AccessibleBoard::indexOfChild(const QAccessibleInterface* child) const {
  const auto* square = dynamic_cast<const AccessibleSquare*>(child);
  return square == nullptr ? -1 : ChildOfSquare(square->Index());
}

QAccessibleInterface* AccessibleBoard::childAt(int x, int y) const {
  const int index = view_.SquareAtPosition(view_.mapFromGlobal(QPoint(x, y)));
  return index == -1 ? nullptr : child(ChildOfSquare(index));
}

QAccessibleInterface* AccessibleBoard::focusChild() const {
  const int square = SquareOfInterest(view_.State());
  return view_.hasFocus() && square != -1 ? child(ChildOfSquare(square)) : nullptr;
}

QAccessibleInterface* AccessibleBoard::cellAt(int row, int column) const {
  return IsSquare(column, row) ? child(ChildOfSquare(SquareIndex(column, row))) : nullptr;
}

QString AccessibleBoard::columnDescription(int column) const {
  return QString(QChar('A' + column));
}

QString AccessibleBoard::rowDescription(int row) const {
  return QString::number(BoardSide - row);
}

void* AccessibleSquare::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableCellInterface) {
    return static_cast<QAccessibleTableCellInterface*>(this);
  }
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  if (type == QAccessible::TextInterface) {
    return &words_.emplace(
        text(QAccessible::Name) + ", " + text(QAccessible::Description), [](int) {}, rect());
  }
  return nullptr;
}

QAccessibleInterface* AccessibleSquare::parent() const {
  return QAccessible::queryAccessibleInterface(&view_);
}

QAccessible::State AccessibleSquare::state() const {
  QAccessible::State state;
  state.focusable = true;
  state.focused = view_.hasFocus() && SquareOfInterest(view_.State()) == index_;
  state.invisible = !view_.isVisible();
  return state;
}

QRect AccessibleSquare::rect() const {
  const QRect square = view_.SquareRectangle(index_);
  return {view_.mapToGlobal(square.topLeft()), square.size()};
}

QString AccessibleSquare::text(QAccessible::Text text) const {
  switch (text) {
    case QAccessible::Name:
      return QString::fromStdString(SquareName(ColumnOf(index_), RowOf(index_)));
    case QAccessible::Description:
      return QString::fromUtf8(DescribeSquare(view_.State(), index_));
    default:
      return {};
  }
}

// Later, since the screen reader waits for an answer and the press may open a dialog. An open
// dialog keeps it from the board as it keeps the mouse.
void AccessibleSquare::doAction(const QString& actionName) {
  if (actionName != pressAction()) return;
  const auto press = [&view = view_, square = index_] {
    if (QApplication::activeModalWidget() == nullptr) view.Press(square);
  };
  QMetaObject::invokeMethod(&view_, press, Qt::QueuedConnection);
}
