#include "ui/application/ReaderCursor.h"

#include <utility>

#include <QRect>
#include <QWidget>

#include "ui/application/ReaderEvents.h"

namespace {

class SpokenPlace : public SpokenObject {
 public:
  SpokenPlace(QAccessible::Id parent, const QString& text, const QWidget& widget,
              const QRect& place, std::unique_ptr<QAccessibleTextInterface> onward)
      : SpokenObject(QAccessible::Caret, parent, text),
        widget_(widget),
        place_(place),
        onward_(std::move(onward)) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TextInterface ? onward_.get() : nullptr;
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = widget_.hasFocus();
    state.invisible = !widget_.isVisible();
    return state;
  }

  QRect rect() const override { return {widget_.mapToGlobal(place_.topLeft()), place_.size()}; }

 private:
  const QWidget& widget_;
  QRect place_;
  std::unique_ptr<QAccessibleTextInterface> onward_;
};

}  // namespace

ReaderCursor::ReaderCursor(QWidget& widget) : widget_(widget), spoken_(QAccessible::Client) {
  ReaderEvents::LeadsReaderItself(widget);
}

// Readers take two objects of one name at one place for the same, so every second one is smaller.
void ReaderCursor::LeadTo(const QRect& place, const QString& text,
                          std::unique_ptr<QAccessibleTextInterface> onward) {
  if (!QAccessible::isActive()) return;
  inset_ = 1 - inset_;
  const QAccessible::Id surroundings =
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(widget_.parentWidget()));
  spoken_.Tell(new SpokenPlace(spoken_.Place(surroundings), text, widget_,
                               place - QMargins(inset_, inset_, inset_, inset_), std::move(onward)),
               QAccessible::Focus);
}
