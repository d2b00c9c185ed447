#include "ui/help/HelpPage.h"

#include <QScrollBar>
#include <QWheelEvent>

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
  } else {
    emit LinkLeadsOut(page);
  }
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
