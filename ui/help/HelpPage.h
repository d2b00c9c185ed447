#pragma once

#include <functional>

#include <QTextBrowser>

#include "ui/application/ReaderCursor.h"
#include "ui/help/PageReading.h"

class HelpBook;

// The page view: follows links inside the book and zooms. It never opens anything outside of it.
// Where a screen reader listens, it has a text cursor, with which the page is read.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  // The book outlives the view.
  explicit HelpPage(const HelpBook& book, QWidget* parent = nullptr);

  void ZoomBy(int steps);
  void ResetZoom();
  // Marks the first place of the word.
  void Find(const QString& word);
  // Has the line of the text cursor read.
  void LeadReader();
  void backward() override;
  void forward() override;

 signals:
  // The player chose a link that leads out of the book; nothing was opened.
  void LinkLeadsOut(const QUrl& link);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void MakeLinksLegible();
  void PutCursorInSight();
  void Read(PageReading::Unit unit);
  void ReturnBy(const std::function<void()>& step);
  void Tell(const QString& text, int from);
  bool GoToLink(bool next);

  const HelpBook& book_;
  ReaderCursor reader_{*this};
};
