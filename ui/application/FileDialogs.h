#pragma once

#include <QFileIconProvider>
#include <QString>

class QWidget;

// What a file dialog is asked for. directory: where it starts; filter: pairs of visible text and
// patterns, all separated by "|"; mustExist: whether a file to open has to be there.
struct FileQuestion {
  QString directory;
  QString filter;
  bool mustExist = true;
};

// Each gives the chosen path, empty when cancelled. A file to save may exist, and the player has
// then agreed to overwrite it. A name is taken as it is typed, with whatever characters it has. The
// dialogs belong to the topmost dialog, or to the main window.
QString ChooseFileToOpen(QWidget& mainWindow, const FileQuestion& question);
QString ChooseFileToSave(QWidget& mainWindow, const FileQuestion& question);

// "Games (*.a;*.b)|*.a;*.b" becomes "Games (*.a;*.b) (*.a *.b)": the dialog hides the last brackets
// and shows the text as it is worded. "*.*" means every file, with or without a dot.
QString QtNameFilters(const QString& filter);

// The icons and kinds that a file dialog shows. Qt's own look into every file of a folder, and wait
// for ever where one of them never gives an answer; these go by the names alone.
class FileIcons : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override;
  QString type(const QFileInfo& file) const override;
};
