#include "tests/ui/Labels.h"

#include <stdexcept>
#include <string>

#include <QLabel>

#include "ui/widgets/ValueLabel.h"

QString TextOf(const QWidget& window, const char* label) {
  if (const auto* value = window.findChild<ValueLabel*>(label)) return value->Text();
  if (const auto* text = window.findChild<QLabel*>(label)) return text->text();
  throw std::runtime_error(std::string("no label named ") + label);
}
