#include "ui/widgets/NamedControls.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/widgets/ValueLabel.h"

QGroupBox* AddFrame(QWidget* parent, const char* name, const QString& caption) {
  auto* frame = new QGroupBox(caption, parent);
  frame->setObjectName(name);
  // A screen reader has no use for the blank and the colon.
  frame->setAccessibleName(caption.trimmed().remove(':'));
  return frame;
}

QVBoxLayout* AddOptionColumn(QGroupBox* frame) {
  auto* layout = new QVBoxLayout(new QWidget(frame));
  layout->setContentsMargins(0, 0, 0, 0);
  return layout;
}

QRadioButton* AddOption(QWidget* parent, const QString& name, const QString& caption) {
  auto* option = new QRadioButton(caption, parent);
  option->setObjectName(name);
  option->setFocusPolicy(Qt::ClickFocus);
  QObject::connect(option, &QRadioButton::toggled, option, [option](bool checked) {
    option->setFocusPolicy(checked ? Qt::StrongFocus : Qt::ClickFocus);
  });
  return option;
}

void AddClearButton(QLineEdit& field) {
  field.setClearButtonEnabled(true);
  field.findChild<QToolButton*>()->setAccessibleName("Clear");
}

QLabel* AddLabel(QWidget* parent, const char* name, const QString& text) {
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

void DisableAndFocus(QWidget& control, QWidget& next) {
  if (control.window()->focusWidget() == &control) next.setFocus();
  control.setEnabled(false);
}

ValueLabel* AddValueLabel(PicturePace& pace, QWidget* parent, const char* name,
                          const QString& longest) {
  auto* label = new ValueLabel(pace, longest, parent);
  label->setObjectName(name);
  return label;
}
