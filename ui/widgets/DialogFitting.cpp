#include "ui/widgets/DialogFitting.h"

#include <algorithm>

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QScrollArea>
#include <QScrollBar>

namespace {

constexpr const char* StaysInSight = "staysInSight";

// As large as what it shows, and not larger than its room. The keyboard goes through what it shows
// and takes the view along.
class ScrollingRows : public QScrollArea {
 public:
  ScrollingRows(QWidget& rows, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(&rows);
    viewport()->setAutoFillBackground(false);
    rows.setAutoFillBackground(false);
    setFocusPolicy(HasStops(rows) ? Qt::NoFocus : Qt::StrongFocus);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) {
      if (widget()->isAncestorOf(focused)) ensureWidgetVisible(focused);
    });
  }

  void SetRoom(const QSize& room) {
    room_ = room;
    updateGeometry();
  }

  // A bar at one side takes room from the other.
  QSize sizeHint() const override {
    const QSize rows = widget()->sizeHint();
    const QSize beside(
        rows.height() > room_.height() ? verticalScrollBar()->sizeHint().width() : 0,
        rows.width() > room_.width() ? horizontalScrollBar()->sizeHint().height() : 0);
    return (rows + beside).boundedTo(room_);
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  static bool HasStops(const QWidget& rows) {
    const auto widgets = rows.findChildren<QWidget*>();
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
      return (widget->focusPolicy() & Qt::TabFocus) != 0;
    });
  }

  QSize room_;
};

void MoveButtonsToTheEnd(QBoxLayout& column) {
  for (int row = 0; row < column.count(); ++row) {
    const QWidget* widget = column.itemAt(row)->widget();
    if (widget == nullptr || !widget->property(StaysInSight).toBool()) continue;
    column.addItem(column.takeAt(row));
    return;
  }
}

void MoveRow(QBoxLayout& from, QBoxLayout& to) {
  const int stretch = from.stretch(0);
  QLayoutItem* row = from.takeAt(0);
  if (QLayout* layout = row->layout()) {
    layout->setParent(nullptr);
    to.addLayout(layout, stretch);
  } else if (QWidget* widget = row->widget()) {
    to.addWidget(widget, stretch, row->alignment());
    delete row;
  } else {
    to.addItem(row);
  }
}

}  // namespace

void KeepInSight(QWidget& row) {
  row.setProperty(StaysInSight, true);
}

void FitDialog(QDialog& dialog, const QSize& room) {
  auto* column = qobject_cast<QBoxLayout*>(dialog.layout());
  if (column == nullptr) return;
  const QSize needed = column->totalSizeHint();
  if (needed.boundedTo(room) == needed) return;
  MoveButtonsToTheEnd(*column);

  auto* rows = new QWidget;
  auto* inner = new QVBoxLayout(rows);
  inner->setContentsMargins(0, 0, 0, 0);
  inner->setSpacing(column->spacing());
  while (column->count() > 1) MoveRow(*column, *inner);
  auto* area = new ScrollingRows(*rows, &dialog);
  column->insertWidget(0, area);
  const QSize around(column->contentsMargins().left() + column->contentsMargins().right(),
                     needed.height() - inner->totalSizeHint().height());
  area->SetRoom(room - around);
}
