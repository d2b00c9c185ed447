#include "ui/help/HelpSearch.h"

#include <algorithm>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTextDocument>
#include <QVBoxLayout>

#include "ui/help/HelpBook.h"
#include "ui/widgets/NamedControls.h"

namespace {

QStringList WordsOf(const QString& query) {
  return query.simplified().split(' ', Qt::SkipEmptyParts);
}

bool HoldsAll(const QString& text, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

QString CountText(std::size_t pages) {
  if (pages == 0) return "No page has all these words.";
  return pages == 1 ? "1 page" : QString("%1 pages").arg(pages);
}

}  // namespace

std::vector<SearchablePage> PagesWith(const std::vector<SearchablePage>& pages,
                                      const QString& query) {
  const QStringList words = WordsOf(query);
  std::vector<SearchablePage> found;
  if (words.isEmpty()) return found;
  std::copy_if(
      pages.begin(), pages.end(), std::back_inserter(found),
      [&](const SearchablePage& page) { return HoldsAll(page.title + " " + page.text, words); });
  std::stable_partition(found.begin(), found.end(),
                        [&](const SearchablePage& page) { return HoldsAll(page.title, words); });
  return found;
}

HelpSearch::HelpSearch(HelpBook& book, QWidget* parent)
    : QWidget(parent), book_(book), results_(new QListWidget), count_(new QLabel) {
  auto* field = new QLineEdit;
  field->setObjectName("searchField");
  field->setAccessibleName("Search for words");
  AddClearButton(*field);
  auto* label = new QLabel("Search &for words:");
  label->setBuddy(field);
  results_->setObjectName("searchResults");
  results_->setAccessibleName("Pages found");
  count_->setObjectName("searchCount");
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(field);
  layout->addWidget(count_);
  layout->addWidget(results_);
  setFocusProxy(field);

  connect(field, &QLineEdit::textChanged, this, &HelpSearch::Search);
  connect(field, &QLineEdit::returnPressed, this, &HelpSearch::ChooseCurrent);
  connect(results_, &QListWidget::itemClicked, this, &HelpSearch::ChooseCurrent);
  connect(results_, &QListWidget::itemActivated, this, &HelpSearch::ChooseCurrent);
}

void HelpSearch::ReadPages() {
  const QList<QUrl> urls = book_.Pages();
  for (const QUrl& url : urls) {
    QTextDocument document;
    document.setHtml(QString::fromUtf8(book_.Data(url)));
    pages_.push_back(
        {url, document.metaInformation(QTextDocument::DocumentTitle), document.toPlainText()});
  }
}

void HelpSearch::Search(const QString& query) {
  if (pages_.empty()) ReadPages();
  words_ = WordsOf(query);
  const std::vector<SearchablePage> found = PagesWith(pages_, query);
  results_->clear();
  for (const SearchablePage& page : found) {
    auto* item = new QListWidgetItem(page.title, results_);
    item->setData(Qt::UserRole, page.url);
  }
  results_->setCurrentRow(0);
  count_->setText(words_.isEmpty() ? QString() : CountText(found.size()));
  if (!words_.isEmpty()) announcer_.Say(SpokenResult());
}

// How many there are, and which of them the Enter key opens.
QString HelpSearch::SpokenResult() const {
  const QListWidgetItem* first = results_->currentItem();
  return first == nullptr ? count_->text() : count_->text() + ", " + first->text();
}

void HelpSearch::ChooseCurrent() {
  const QListWidgetItem* item = results_->currentItem();
  if (item != nullptr) emit PageChosen(item->data(Qt::UserRole).toUrl(), words_);
}
