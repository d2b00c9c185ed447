#include "ui/support/QtDialogs.h"

#include <algorithm>

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include "ui/support/FileIcons.h"

namespace {

// Room beside the text for the icon and the box's own margins.
constexpr int BoxMargin = 160;

// The texts come in lines of their own; a box keeps them whole as far as the screen allows.
void KeepLinesWhole(QMessageBox& box) {
  auto* label = box.findChild<QLabel*>("qt_msgbox_label");
  if (label == nullptr) return;
  const int widest = label->fontMetrics().size(0, box.text()).width();
  label->setMinimumWidth(std::min(widest + 1, box.screen()->availableSize().width() - BoxMargin));
}

// A directory that is gone and has no separator at its end would be taken for the name of a file.
QString AsDirectory(const QString& text) {
  return text.endsWith('/') ? text : text + '/';
}

}  // namespace

QWidget* QtDialogs::Parent() const {
  QWidget* dialog = QApplication::activeModalWidget();
  return dialog != nullptr ? dialog : &mainWindow_;
}

QString QtDialogs::OpenFile(const FileQuestion& question) {
  FileIcons icons;
  QFileDialog dialog(Parent(), QString(), AsDirectory(question.directory),
                     ToolkitNameFilters(question.filter));
  dialog.setIconProvider(&icons);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setFileMode(question.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString QtDialogs::SaveFile(const FileQuestion& question) {
  FileIcons icons;
  QFileDialog dialog(Parent(), QString(), AsDirectory(question.directory),
                     ToolkitNameFilters(question.filter));
  dialog.setIconProvider(&icons);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  while (dialog.exec() == QDialog::Accepted) {
    QString pathName = dialog.selectedFiles().value(0);
    if (QFileInfo(pathName).absoluteDir().exists()) return pathName;
    Tell(dialog.windowTitle(),
         pathName + "\nPath does not exist.\nVerify that it is the right one.",
         MessageIcon::Exclamation);
  }
  return {};
}

std::optional<QColor> QtDialogs::ChooseColor(const QColor& initial) {
  QColorDialog dialog(initial, Parent());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.selectedColor();
}

std::optional<QString> QtDialogs::InputBox(const QString& title, const QString& prompt,
                                           const QString& prefilled) {
  QInputDialog dialog(Parent());
  dialog.setWindowTitle(title);
  dialog.setLabelText(prompt);
  dialog.setTextValue(prefilled);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.textValue();
}

bool QtDialogs::Ask(const QString& title, const QString& text, DefaultAnswer defaultAnswer) {
  QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, Parent());
  box.setTextFormat(Qt::PlainText);
  KeepLinesWhole(box);
  box.setDefaultButton(defaultAnswer == DefaultAnswer::Yes ? QMessageBox::Yes : QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

void QtDialogs::Tell(const QString& title, const QString& text, MessageIcon icon) {
  const auto symbol =
      icon == MessageIcon::Information ? QMessageBox::Information : QMessageBox::Warning;
  QMessageBox box(symbol, title, text, QMessageBox::Ok, Parent());
  box.setTextFormat(Qt::PlainText);
  KeepLinesWhole(box);
  box.exec();
}

QString ToolkitNameFilters(const QString& filter) {
  const QStringList parts = filter.split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(';', ' ').replace("*.*", "*");
    filters << parts[i] + " (" + patterns.simplified() + ")";
  }
  return filters.join(";;");
}
