#include "ui/help/HelpPage.h"

#include <memory>

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/application/ReaderEvents.h"
#include "ui/application/SpokenText.h"
#include "ui/help/HelpBook.h"

namespace {

constexpr qreal SmallestPointSize = 6;
constexpr qreal LargestPointSize = 40;
constexpr int PageMargin = 16;

// The blue that links have where the desktop says nothing else is lost on a dark page.
QString LinkStyle(const QPalette& palette) {
  constexpr int Middle = 128;
  const bool darkOnDark = palette.color(QPalette::Base).lightness() < Middle &&
                          palette.color(QPalette::Link).lightness() <= Middle;
  return darkOnDark ? "a { color: #80b0ff; }" : "";
}

}  // namespace

HelpPage::HelpPage(const HelpBook& book, QWidget* parent) : QTextBrowser(parent), book_(book) {
  setObjectName("helpPage");
  setAccessibleName("Help page");
  setOpenExternalLinks(false);
  document()->setDocumentMargin(PageMargin);
  MakeLinksLegible();
}

void HelpPage::MakeLinksLegible() {
  document()->setDefaultStyleSheet(LinkStyle(palette()));
}

void HelpPage::ZoomBy(int steps) {
  const qreal wanted = font().pointSizeF() + steps;
  if (wanted >= SmallestPointSize && wanted <= LargestPointSize) zoomIn(steps);
}

void HelpPage::ResetZoom() {
  setFont(parentWidget() != nullptr ? parentWidget()->font() : QFont());
}

QVariant HelpPage::loadResource(int, const QUrl& name) {
  return book_.Data(book_.Resolved(name));
}

void HelpPage::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
  const QUrl page = book_.Resolved(source().resolved(url));
  if (book_.Has(page.adjusted(QUrl::RemoveFragment))) {
    QTextBrowser::doSetSource(page, type);
    PutCursorInSight();
    if (hasFocus()) LeadReader();
  } else {
    emit LinkLeadsOut(page);
  }
}

// A link may lead into the middle of a page, and then the page is read from there.
void HelpPage::PutCursorInSight() {
  if (QAccessible::isActive()) setTextCursor(cursorForPosition({PageMargin, PageMargin / 2}));
}

void HelpPage::backward() {
  ReturnBy([this] { QTextBrowser::backward(); });
}

void HelpPage::forward() {
  ReturnBy([this] { QTextBrowser::forward(); });
}

// The text cursor is where it was on that page, which may be far from its title.
void HelpPage::ReturnBy(const std::function<void()>& step) {
  {
    const ReaderEvents::Silence silence;
    step();
  }
  if (!hasFocus()) return;
  const QTextCursor line = PageReading::At(textCursor(), PageReading::Unit::Line);
  const QString text = PageReading::Spoken(line.selectedText());
  const bool isTitle = text == documentTitle();
  Tell(isTitle ? text : documentTitle() + ", " + text, line.selectionStart());
}

// A screen reader would tell of the selection instead of the line that the player goes to next.
void HelpPage::Find(const QString& word) {
  const ReaderEvents::Silence silence;
  moveCursor(QTextCursor::Start);
  find(word);
  if (QAccessible::isActive()) moveCursor(QTextCursor::WordLeft);
}

void HelpPage::LeadReader() {
  Read(PageReading::Unit::Line);
}

void HelpPage::Read(PageReading::Unit unit) {
  const QTextCursor read = PageReading::At(textCursor(), unit);
  Tell(PageReading::Spoken(read.selectedText()), read.selectionStart());
}

// A reader that is to read on begins with what it was told, and leaves the text cursor where it
// ended.
void HelpPage::Tell(const QString& text, int from) {
  if (!QAccessible::isActive()) return;
  reader_.LeadTo(cursorRect(), text,
                 std::make_unique<SpokenText>(toPlainText().mid(from), [this, from](int onward) {
                   QTextCursor cursor(document());
                   cursor.setPosition(from + onward);
                   const ReaderEvents::Silence silence;
                   setTextCursor(cursor);
                 }));
}

// Where the text cursor has been moved, readers read what they believe the key to be for. A slow
// machine tells them of the key when it is late for that, Orca takes the word for a letter once the
// key is released, and at the end of the page they hear of nothing at all.
void HelpPage::keyPressEvent(QKeyEvent* event) {
  const PageReading::Unit unit = PageReading::After(*event);
  if (unit == PageReading::Unit::None) return QTextBrowser::keyPressEvent(event);
  {
    const ReaderEvents::Silence silence;
    QTextBrowser::keyPressEvent(event);
  }
  Read(unit);
}

void HelpPage::focusInEvent(QFocusEvent* event) {
  if (QAccessible::isActive()) {
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  }
  QTextBrowser::focusInEvent(event);
  LeadReader();
}

// The selection that marks the link would be read instead of the line that the player goes to next.
bool HelpPage::GoToLink(bool next) {
  const ReaderEvents::Silence silence;
  return QTextBrowser::focusNextPrevChild(next);
}

// The tab key leads from link to link, and in the end out of the page.
bool HelpPage::focusNextPrevChild(bool next) {
  const bool found = GoToLink(next);
  if (hasFocus()) {
    const QTextCursor link = textCursor();
    if (link.hasSelection()) Tell(link.selectedText() + ", link", link.selectionStart());
  } else if (QWidget* other = QApplication::focusWidget()) {
    QAccessibleEvent event(other, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
  }
  return found;
}

void HelpPage::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QTextBrowser::wheelEvent(event);
    return;
  }
  const int turn = event->angleDelta().y();
  if (turn != 0) ZoomBy(turn > 0 ? 1 : -1);
  event->accept();
}

// A page takes the colours of the desktop when it is read.
void HelpPage::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  MakeLinksLegible();
  const int place = verticalScrollBar()->value();
  if (!source().isEmpty()) reload();
  verticalScrollBar()->setValue(place);
}
