#include "ui/application/ColorWells.h"

#include <algorithm>
#include <utility>

#include <QAccessible>
#include <QColorDialog>
#include <QKeyEvent>

namespace {

constexpr int BasicRows = 6;
constexpr int CustomRows = 2;

bool MovesOrChooses(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  switch (static_cast<const QKeyEvent&>(event).key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Space:
      return true;
    default:
      return false;
  }
}

}  // namespace

QString SpokenColor(const QColor& color) {
  return QString("red %1, green %2, blue %3").arg(color.red()).arg(color.green()).arg(color.blue());
}

// Qt's class of these squares is its own affair; the dialog numbers the colours column by column.
void ColorWells::LeadReaders(QColorDialog& dialog) {
  QList<QWidget*> wells;
  for (QWidget* widget : dialog.findChildren<QWidget*>()) {
    if (widget->inherits("QWellArray")) wells << widget;
  }
  if (wells.size() != 2) return;  // a dialog of the desktop's own
  new ColorWells(*wells[0], [](int row, int column) {
    return QColorDialog::standardColor(row + column * BasicRows);
  });
  new ColorWells(*wells[1], [](int row, int column) {
    return QColorDialog::customColor(row + column * CustomRows);
  });
}

ColorWells::ColorWells(QWidget& wells, Colors colors)
    : QObject(&wells),
      wells_(wells),
      colors_(std::move(colors)),
      row_(std::max(0, ChosenRow())),
      column_(std::max(0, ChosenColumn())),
      reader_(wells) {
  connect(&wells, SIGNAL(currentChanged(int, int)), this, SLOT(MoveTo(int, int)));
  wells.installEventFilter(this);
}

// Also with the keyboard.
void ColorWells::MoveTo(int row, int column) {
  row_ = row;
  column_ = column;
}

// Told later, when the key has been acted on, and after the name of the window.
bool ColorWells::eventFilter(QObject*, QEvent* event) {
  const bool isEntered = event->type() == QEvent::FocusIn;
  if (isEntered || MovesOrChooses(*event)) {
    QMetaObject::invokeMethod(
        this, [this, isEntered] { Tell(isEntered); }, Qt::QueuedConnection);
  }
  return false;
}

void ColorWells::Tell(bool withCaption) {
  if (!QAccessible::isActive()) return;
  const QString caption =
      withCaption ? QAccessible::queryAccessibleInterface(&wells_)->text(QAccessible::Name) + ", "
                  : QString();
  const bool isChosen = row_ == ChosenRow() && column_ == ChosenColumn();
  reader_.LeadTo(wells_.rect(),
                 caption + SpokenColor(colors_(row_, column_)) + (isChosen ? ", selected" : ""));
}

int ColorWells::ChosenRow() const {
  return wells_.property("selectedRow").toInt();
}

int ColorWells::ChosenColumn() const {
  return wells_.property("selectedColumn").toInt();
}
