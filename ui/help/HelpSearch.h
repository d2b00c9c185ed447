#pragma once

#include <vector>

#include <QUrl>
#include <QWidget>

#include "ui/application/Announcer.h"

class HelpBook;
class QLabel;
class QListWidget;

// A page as the search sees it.
struct SearchablePage {
  QUrl url;
  QString title;
  QString text;
};

// The pages that hold every word of the query, in any case; those whose title holds them come
// first.
std::vector<SearchablePage> PagesWith(const std::vector<SearchablePage>& pages,
                                      const QString& query);

// Full-text search over all pages, as the player types.
class HelpSearch : public QWidget {
  Q_OBJECT

 public:
  // The book outlives the panel.
  explicit HelpSearch(HelpBook& book, QWidget* parent = nullptr);

 signals:
  // words: what was looked for on that page.
  void PageChosen(const QUrl& page, const QStringList& words);

 private:
  void Search(const QString& query);
  void ChooseCurrent();
  void ReadPages();
  QString SpokenResult() const;

  HelpBook& book_;
  std::vector<SearchablePage> pages_;  // read when the player first searches
  QListWidget* results_;
  QLabel* count_;
  QStringList words_;
  Announcer announcer_;
};
