#pragma once

#include <QPushButton>

class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QVBoxLayout;
class PicturePace;
class QWidget;
class ValueLabel;

// Controls of several windows under the names that they have in the program's vocabulary; each
// belongs to its parent.

QGroupBox* AddFrame(QWidget* parent, const char* name, const QString& caption);

// For the options of a frame, one below the other, in a widget that belongs to the frame. The
// caption of a frame counts as the label of what lies right in it, so that readers would say it
// twice.
QVBoxLayout* AddOptionColumn(QGroupBox* frame);

// Of a group of options the chosen one is the stop of the tab key.
QRadioButton* AddOption(QWidget* parent, const QString& name, const QString& caption);

// A click on it is the window's to handle.
template <typename Window>
QPushButton* AddButton(Window* window, const char* name, const QString& caption,
                       void (Window::*handler)()) {
  auto* button = new QPushButton(caption, window);
  button->setObjectName(name);
  QObject::connect(button, &QPushButton::clicked, window, handler);
  return button;
}

// A button in the field that empties it, with a name.
void AddClearButton(QLineEdit& field);

// Shows its text as it stands, never as markup.
QLabel* AddLabel(QWidget* parent, const char* name, const QString& text);

// Disables a control. If it had the keyboard, an enabled one gets it next, and not, as Qt would
// have it, whatever comes after it in the window: that may be the button that closes it.
void DisableAndFocus(QWidget& control, QWidget& next);

// For a value that changes fast: the label has the size of the longest text. The pace outlives it.
ValueLabel* AddValueLabel(PicturePace& pace, QWidget* parent, const char* name,
                          const QString& longest);
