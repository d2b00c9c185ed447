#include "ui/application/FileDialogs.h"

#include <algorithm>

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMimeDatabase>
#include <QScreen>
#include <QTreeView>

#include "ui/application/MessageBoxes.h"
#include "ui/widgets/LongText.h"

namespace {

constexpr int SizeColumn = 1;
constexpr int DateColumn = 3;
constexpr int ColumnMargin = 24;
constexpr int NameCharacters = 30;

// A directory that is gone and has no separator at its end would be taken for the name of a file.
QString AsDirectory(const QString& text) {
  return text.endsWith('/') ? text : text + '/';
}

QString WidestDate() {
  return QLocale::system().toString(QDateTime({2028, 12, 28}, {22, 58, 58}), QLocale::ShortFormat);
}

// Qt's file dialog with questions and messages of our own, in plain text: Qt's take a file's name
// for markup. It takes a name as it is typed, where Qt takes only what stands between double
// quotes. Where the desktop has a dialog of its own, that is shown and asks for itself.
class FileDialog : public QFileDialog {
 public:
  FileDialog(QWidget& mainWindow, const QString& title, const FileQuestion& question);

  // The path, after the dialog has been accepted.
  QString Chosen() const;

  void accept() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QString PathOf(const QString& typed) const;
  bool MayTake(const QFileInfo& file);
  bool MayOverwrite(const QFileInfo& file);
  void Refuse(const QString& name, const QString& why);
  void ShowWholeColumns();
  void NameTypeLabel();

  FileIcons icons_;
  QString chosen_;
};

FileDialog::FileDialog(QWidget& mainWindow, const QString& title, const FileQuestion& question)
    : QFileDialog(DialogParent(mainWindow), title, AsDirectory(question.directory),
                  QtNameFilters(question.filter)) {
  setIconProvider(&icons_);
  setOption(QFileDialog::HideNameFilterDetails);
}

QString FileDialog::Chosen() const {
  return chosen_.isEmpty() ? selectedFiles().value(0) : chosen_;
}

QString FileDialog::PathOf(const QString& typed) const {
  // Qt would take what stands between double quotes for the names of several files.
  return typed.contains('"') ? directory().absoluteFilePath(typed) : selectedFiles().value(0);
}

void FileDialog::accept() {
  auto* name = findChild<QLineEdit*>("fileNameEdit");
  if (name == nullptr) return QFileDialog::accept();  // a dialog of the desktop's own
  const QFileInfo file(PathOf(name->text()));
  if (file.isDir()) {
    const bool wasTyped = directory().absoluteFilePath(name->text()) == file.absoluteFilePath();
    if (wasTyped) name->clear();  // first: Qt selects the folder for an empty name
    setDirectory(QDir::cleanPath(file.absoluteFilePath()));
  } else if (MayTake(file)) {
    chosen_ = file.absoluteFilePath();
    QDialog::accept();
  } else {
    name->selectAll();  // the next name takes its place
  }
}

bool FileDialog::MayTake(const QFileInfo& file) {
  if (!file.absoluteDir().exists()) {
    Refuse(file.absoluteFilePath(), "Path does not exist.\nVerify that it is the right one.");
    return false;
  }
  if (acceptMode() == AcceptSave) return !file.exists() || MayOverwrite(file);
  if (file.exists() || fileMode() == AnyFile) return true;
  Refuse(file.fileName(), "File not found.\nPlease verify the correct file name was given.");
  return false;
}

bool FileDialog::MayOverwrite(const QFileInfo& file) {
  return AskQuestion(
      *this, windowTitle(),
      InLines(file.fileName(), CharactersOfLine) + " already exists.\nDo you want to replace it?",
      DefaultAnswer::No);
}

void FileDialog::Refuse(const QString& name, const QString& why) {
  TellMessage(*this, windowTitle(), InLines(name, CharactersOfLine) + "\n" + why,
              MessageIcon::Exclamation);
}

void FileDialog::showEvent(QShowEvent* event) {
  ShowWholeColumns();
  NameTypeLabel();
  QFileDialog::showEvent(event);
}

// The dialog opens wide enough for all columns, as far as the screen has the room.
void FileDialog::ShowWholeColumns() {
  auto* files = findChild<QTreeView*>("treeView");
  if (files == nullptr) return;
  QHeaderView& header = *files->header();
  const QFontMetrics letters = files->fontMetrics();
  const auto widen = [&](int column, int width) {
    header.resizeSection(column, std::max(header.sectionSize(column), width + ColumnMargin));
  };
  widen(0, NameCharacters * letters.averageCharWidth());
  widen(SizeColumn, letters.horizontalAdvance("1023.99 KiB"));
  widen(DateColumn, letters.horizontalAdvance(WidestDate()));
  layout()->activate();
  const int missing = header.length() + ColumnMargin - files->width();
  const QSize room = screen()->availableSize();
  if (missing > 0) resize(QSize(width() + missing, height()).boundedTo(room));
}

// It belongs to nothing, since of a box that has a label Orca says the label alone. But of three
// words that belong to nothing it takes the text for the dialog's message.
void FileDialog::NameTypeLabel() {
  auto* label = findChild<QLabel*>("fileTypeLabel");
  if (label != nullptr) label->setAccessibleName("File type");
}

}  // namespace

QString ChooseFileToOpen(QWidget& mainWindow, const FileQuestion& question) {
  FileDialog dialog(mainWindow, "Open", question);
  dialog.setFileMode(question.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  return dialog.exec() == QDialog::Accepted ? dialog.Chosen() : QString();
}

QString ChooseFileToSave(QWidget& mainWindow, const FileQuestion& question) {
  FileDialog dialog(mainWindow, "Save As", question);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  return dialog.exec() == QDialog::Accepted ? dialog.Chosen() : QString();
}

QString QtNameFilters(const QString& filter) {
  const QStringList parts = filter.split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(';', ' ').replace("*.*", "*");
    filters << parts[i] + " (" + patterns.simplified() + ")";
  }
  return filters.join(";;");
}

QIcon FileIcons::icon(const QFileInfo& file) const {
  return icon(file.isDir() ? QFileIconProvider::Folder : QFileIconProvider::File);
}

QString FileIcons::type(const QFileInfo& file) const {
  if (!file.isFile()) return QFileIconProvider::type(file);
  const QMimeType type = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
  return type.isDefault() ? "File" : type.comment();  // Qt's word is "unknown"
}
