#include "ui/application/MessageBoxes.h"

#include <QApplication>
#include <QColorDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include "ui/application/ColorWells.h"
#include "ui/widgets/LongText.h"
#include "ui/widgets/WindowPlacing.h"

namespace {

// Room beside the text for the icon and the box's own margins.
constexpr int BoxMargin = 160;

// The texts come in lines of their own; a box keeps them whole as far as the screen allows.
void KeepTextWhole(QMessageBox& box) {
  auto* label = box.findChild<QLabel*>("qt_msgbox_label");
  if (label == nullptr) return;
  KeepLinesWhole(*label, box.screen()->availableSize().width() - BoxMargin);
}

}  // namespace

QWidget* DialogParent(QWidget& mainWindow) {
  QWidget* dialog = QApplication::activeModalWidget();
  return dialog != nullptr ? dialog : &mainWindow;
}

bool AskQuestion(QWidget& mainWindow, const QString& title, const QString& text,
                 DefaultAnswer defaultAnswer) {
  QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                  DialogParent(mainWindow));
  box.setTextFormat(Qt::PlainText);
  KeepTextWhole(box);
  box.setDefaultButton(defaultAnswer == DefaultAnswer::Yes ? QMessageBox::Yes : QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void TellMessage(QWidget& mainWindow, const QString& title, const QString& text, MessageIcon icon) {
  const auto symbol =
      icon == MessageIcon::Information ? QMessageBox::Information : QMessageBox::Warning;
  QMessageBox box(symbol, title, text, QMessageBox::Ok, DialogParent(mainWindow));
  box.setTextFormat(Qt::PlainText);
  KeepTextWhole(box);
  box.exec();
}

std::optional<QColor> ChooseColor(QWidget& mainWindow, const QColor& initial) {
  QWidget* parent = DialogParent(mainWindow);
  QColorDialog dialog(initial, parent);
  ColorWells::LeadReaders(dialog);
  PlaceDialog(dialog, *parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.selectedColor();
}

std::optional<QString> InputBox(QWidget& mainWindow, const QString& title, const QString& prompt,
                                const QString& prefilled) {
  QWidget* parent = DialogParent(mainWindow);
  QInputDialog dialog(parent);
  dialog.setWindowTitle(title);
  dialog.setLabelText(prompt);
  dialog.setTextValue(prefilled);
  dialog.sizeHint();  // only then it has its controls
  PlaceDialog(dialog, *parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.textValue();
}
