#include "ui/support/NamedControls.h"

#include <QGroupBox>
#include <QLabel>

#include "ui/support/ValueLabel.h"

QGroupBox* AddFrame(QWidget* parent, const char* name, const QString& caption) {
  auto* frame = new QGroupBox(caption, parent);
  frame->setObjectName(name);
  return frame;
}

QLabel* AddLabel(QWidget* parent, const char* name, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

ValueLabel* AddValueLabel(QWidget* parent, const char* name, const QString& longest) {
  auto* label = new ValueLabel(longest, parent);
  label->setObjectName(name);
  return label;
}
