#pragma once

#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QTemporaryDir>
#include <QUrl>

// The help file, open for reading. The collection that Qt wants to write beside it lies in a
// private temporary directory, so the program directory may be read-only.
class HelpBook {
 public:
  // A file that is missing or damaged is told by Error(); the book is then empty.
  explicit HelpBook(const QString& pathName);

  // Empty when the book is open; otherwise why it is not, for the player to read.
  const QString& Error() const { return error_; }

  // The page of an index entry or of a window's object name, told apart by case; empty when there
  // is none.
  QUrl PageOf(const QString& keyword) const;
  QList<QUrl> Pages();
  // A link of a page, made absolute; links that lead out of the book stay as they are.
  QUrl Resolved(const QUrl& link) const;
  bool Has(const QUrl& page) const;
  QByteArray Data(const QUrl& file) const { return engine_.fileData(file); }

  // Both are filled soon after the book is made. The caller takes the tree over.
  QHelpContentWidget* ContentsTree() { return engine_.contentWidget(); }
  QAbstractItemModel& Keywords() { return *engine_.indexModel(); }

  // The book cannot be used afterwards.
  void RemoveTemporaryFiles() { directory_.remove(); }

 private:
  QString NamedInText(const QString& pathName) const;
  void Open(const QString& pathName);

  QTemporaryDir directory_;
  QHelpEngine engine_;
  QString nameSpace_;
  QString error_;
};
