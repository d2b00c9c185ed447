#pragma once

#include <QWidget>

#include "ui/application/Announcer.h"

class QAbstractItemModel;
class QListView;
class QSortFilterProxyModel;

// The keyword index: a list of words, and a field that narrows it.
class HelpIndex : public QWidget {
  Q_OBJECT

 public:
  // keywords outlives the panel.
  explicit HelpIndex(QAbstractItemModel& keywords, QWidget* parent = nullptr);

 signals:
  void KeywordChosen(const QString& keyword);

 private:
  void Narrow(const QString& text);
  void ChooseCurrent();
  QString SpokenResult() const;

  QSortFilterProxyModel* shown_;
  QListView* list_;
  Announcer announcer_;
};
