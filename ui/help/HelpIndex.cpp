#include "ui/help/HelpIndex.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

#include "ui/widgets/NamedControls.h"

HelpIndex::HelpIndex(QAbstractItemModel& keywords, QWidget* parent)
    : QWidget(parent), shown_(new QSortFilterProxyModel(this)), list_(new QListView) {
  shown_->setSourceModel(&keywords);
  shown_->setFilterCaseSensitivity(Qt::CaseInsensitive);
  shown_->setSortCaseSensitivity(Qt::CaseInsensitive);
  shown_->sort(0);
  auto* filter = new QLineEdit;
  filter->setObjectName("indexFilter");
  filter->setAccessibleName("Index filter");
  AddClearButton(*filter);
  auto* label = new QLabel("&Look for:");
  label->setBuddy(filter);
  list_->setObjectName("indexList");
  list_->setAccessibleName("Index");
  list_->setModel(shown_);
  list_->setEditTriggers(QListView::NoEditTriggers);
  list_->setUniformItemSizes(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(filter);
  layout->addWidget(list_);
  setFocusProxy(filter);
  Narrow(QString());

  connect(filter, &QLineEdit::textChanged, this, &HelpIndex::Narrow);
  connect(filter, &QLineEdit::returnPressed, this, &HelpIndex::ChooseCurrent);
  connect(list_, &QListView::clicked, this, &HelpIndex::ChooseCurrent);
  connect(list_, &QListView::activated, this, &HelpIndex::ChooseCurrent);
}

void HelpIndex::Narrow(const QString& text) {
  shown_->setFilterFixedString(text.trimmed());
  list_->setCurrentIndex(shown_->index(0, 0));
  if (!text.isEmpty()) announcer_.Say(SpokenResult());
}

// What the Enter key opens.
QString HelpIndex::SpokenResult() const {
  const QModelIndex first = list_->currentIndex();
  return first.isValid() ? first.data().toString() : "no keyword";
}

void HelpIndex::ChooseCurrent() {
  const QModelIndex current = list_->currentIndex();
  if (current.isValid()) emit KeywordChosen(current.data().toString());
}
