#include "ui/application/ReaderEvents.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

namespace {

constexpr const char* LeadsItself = "leadsReaderItself";
constexpr const char* ToldOf = "readersAreToldOf";  // of the application: who has the keyboard

void PassOn(QAccessibleEvent& event);

void Handle(QAccessibleEvent* event) {
  PassOn(*event);
}

void Send(QAccessibleEvent& event) {
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(&event);
  QAccessible::installUpdateHandler(Handle);
}

// Of the new caption of a button Qt tells, in place of the text, the button itself. Orca can make
// nothing of that where it is at this button, nor of what is chosen in a box with a list; so it
// meets another one in its place.
void SendAsAnother(QWidget& control) {
  QAccessible::deleteAccessibleInterface(
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&control)));
  QAccessibleEvent event(&control, QAccessible::Focus);
  Send(event);
}

bool HasNewText(const QAccessibleEvent& event) {
  if (event.type() == QAccessible::NameChanged) {
    return qobject_cast<QAbstractButton*>(event.object()) != nullptr;
  }
  return event.type() == QAccessible::ValueChanged &&
         qobject_cast<QComboBox*>(event.object()) != nullptr;
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

void NoteFocus(const QAccessibleEvent& event, const QWidget& widget) {
  if (event.type() != QAccessible::Focus || !widget.hasFocus()) return;
  qApp->setProperty(ToldOf, QVariant::fromValue(QPointer<QWidget>(QApplication::focusWidget())));
}

bool IsToldOfFocus() {
  return qApp->property(ToldOf).value<QPointer<QWidget>>() == QApplication::focusWidget();
}

// A list also tells of its current entry, and a text of its changes and its selection, while the
// keyboard is elsewhere; readers would go there. And what a line of text selects when it gets the
// keyboard, they would say before they are told that it has, and then once more.
bool LeadsAstray(const QAccessibleEvent& event, const QWidget& widget) {
  switch (event.type()) {
    case QAccessible::Focus:
      return widget.property(LeadsItself).toBool() || !HasKeyboard(widget);
    case QAccessible::TextCaretMoved:
    case QAccessible::TextSelectionChanged:
      return !HasKeyboard(widget) || !IsToldOfFocus();
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
  auto* widget = qobject_cast<QWidget*>(event.object());
  if (widget != nullptr) NoteFocus(event, *widget);
  if (widget != nullptr && LeadsAstray(event, *widget)) return;
  LeadToCurrentRow(event);
  if (HasNewText(event) && widget->hasFocus()) return SendAsAnother(*widget);
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
