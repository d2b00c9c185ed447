#pragma once

#include <optional>

#include <QMainWindow>

#include "ui/help/HelpBook.h"

class HelpPage;
class QTabWidget;

// The help window: contents, index and search beside the page. Closing only hides it, so it keeps
// its place, its page and its size of text as long as the program runs. It stays usable while a
// dialog is open.
class frmHelp : public QMainWindow {
  Q_OBJECT

 public:
  // Opens the help file in programDirectory, which ends in "/". Without a readable file the window
  // says so.
  explicit frmHelp(const QString& programDirectory, QWidget* parent = nullptr);
  ~frmHelp() override;

  // Where there is room; for the first time that the window is shown.
  void PlaceBesideGame(const QWidget& game);

  // Both show the window above the others.
  void ShowContents();
  // The page of an index entry or of a window's object name; the contents when there is none.
  void ShowTopic(const QString& keyword);

  // For a program that ends at once.
  void RemoveTemporaryFiles() { book_.RemoveTemporaryFiles(); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildViewer();
  void BuildError();
  QWidget* BuildSide();
  void BuildToolBar();
  void AddWindowShortcuts();
  void ShowContentsTree();
  void OpenPage(const QUrl& page);
  void OpenPageAt(const QUrl& page, const QStringList& words);
  void GoToPage(const QUrl& page);
  void ReturnBy(void (HelpPage::*step)());
  void LeadReaderToPage();
  void SelectInContents(const QUrl& page);
  void RaiseWindow();

  HelpBook book_;
  QHelpContentWidget* contents_ = nullptr;
  HelpPage* page_ = nullptr;
  QTabWidget* side_ = nullptr;
  std::optional<QPoint> place_;
};
