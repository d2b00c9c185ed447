#pragma once

#include <QTextBrowser>

class HelpBook;

// The page view: follows links inside the book and zooms. It never opens anything outside of it.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  // The book outlives the view.
  explicit HelpPage(const HelpBook& book, QWidget* parent = nullptr);

  void ZoomBy(int steps);
  void ResetZoom();

 signals:
  // The player chose a link that leads out of the book; nothing was opened.
  void LinkLeadsOut(const QUrl& link);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void MakeLinksLegible();

  const HelpBook& book_;
};
