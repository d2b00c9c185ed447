#include "ui/application/ReaderEvents.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QListView>
#include <QMenu>
#include <QMenuBar>

namespace {

constexpr const char* LeadsItself = "leadsReaderItself";

void PassOn(QAccessibleEvent& event);

void Handle(QAccessibleEvent* event) {
  PassOn(*event);
}

void Send(QAccessibleEvent& event) {
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(&event);
  QAccessible::installUpdateHandler(Handle);
}

// Of the new caption of a button Qt tells, in place of the text, the button itself. Orca can
// make nothing of that where it is at this button; so it meets another one in its place.
void SendAsAnother(QAbstractButton& button) {
  QAccessible::deleteAccessibleInterface(
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&button)));
  QAccessibleEvent event(&button, QAccessible::Focus);
  Send(event);
}

// What only holds the tabs' pages is nothing to be read.
QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
  if (className != "QStackedWidget") return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Client);
}

bool HasKeyboard(const QWidget& widget) {
  const bool isOfMenu = qobject_cast<const QMenu*>(&widget) != nullptr ||
                        qobject_cast<const QMenuBar*>(&widget) != nullptr;
  return widget.hasFocus() || isOfMenu || widget.window()->windowType() == Qt::Popup;
}

// A list also tells of its current entry, and a text of its changes and its selection, while the
// keyboard is elsewhere; readers would go there.
bool LeadsAstray(const QAccessibleEvent& event, const QWidget& widget) {
  switch (event.type()) {
    case QAccessible::Focus:
      return widget.property(LeadsItself).toBool() || !HasKeyboard(widget);
    case QAccessible::TextCaretMoved:
    case QAccessible::TextSelectionChanged:
    case QAccessible::TextInserted:
    case QAccessible::TextRemoved:
    case QAccessible::TextUpdated:
      return !HasKeyboard(widget);
    default:
      return false;
  }
}

// Who comes to a list comes to its current row; Qt tells of the row only when it changes.
void LeadToCurrentRow(QAccessibleEvent& event) {
  const auto* list = qobject_cast<QListView*>(event.object());
  const bool isOfWhole = event.type() == QAccessible::Focus && event.child() < 0;
  if (list != nullptr && isOfWhole) event.setChild(list->currentIndex().row());
}

void PassOn(QAccessibleEvent& event) {
  const auto* widget = qobject_cast<QWidget*>(event.object());
  auto* button = qobject_cast<QAbstractButton*>(event.object());
  if (widget != nullptr && LeadsAstray(event, *widget)) return;
  LeadToCurrentRow(event);
  const bool isCaption = event.type() == QAccessible::NameChanged && button != nullptr;
  if (isCaption && button->hasFocus()) return SendAsAnother(*button);
  Send(event);
}

}  // namespace

void ReaderEvents::Install() {
  QAccessible::installUpdateHandler(Handle);
  QAccessible::installFactory(MakeAccessible);
}

ReaderEvents::Silence::Silence()
    : before_(QAccessible::installUpdateHandler([](QAccessibleEvent*) {})) {}

ReaderEvents::Silence::~Silence() {
  QAccessible::installUpdateHandler(before_);
}

void ReaderEvents::LeadsReaderItself(QWidget& widget) {
  widget.setProperty(LeadsItself, true);
}
