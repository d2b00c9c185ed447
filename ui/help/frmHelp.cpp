#include "ui/help/frmHelp.h"

#include <QAccessible>
#include <QAction>
#include <QHelpContentWidget>
#include <QLabel>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

#include "storage/OwnFiles.h"
#include "ui/help/HelpIcons.h"
#include "ui/help/HelpIndex.h"
#include "ui/help/HelpPage.h"
#include "ui/help/HelpSearch.h"
#include "ui/widgets/WindowPlacing.h"

namespace {

constexpr int SmallestWidthInRows = 36;
constexpr const char* FirstPage = "welcome.html";

QSize DesignedSize(const QWidget& window) {
  const QFontMetrics metrics = window.fontMetrics();
  // Not counted in average letters, since these are twice as wide in a Japanese font.
  const QSize wanted(metrics.height() * 60, metrics.height() * 42);
  return wanted.boundedTo(window.screen()->availableSize() * 9 / 10);
}

}  // namespace

frmHelp::frmHelp(const QString& programDirectory, QWidget* parent)
    : QMainWindow(parent, Qt::Window), book_(programDirectory + HelpFileName) {
  setObjectName("frmHelp");
  setWindowTitle("Gallopade Nova Help");
  // The program ends with its main window, whether or not this one is open.
  setAttribute(Qt::WA_QuitOnClose, false);
  resize(DesignedSize(*this));
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  connect(escape, &QShortcut::activated, this, &QWidget::close);
  if (book_.Error().isEmpty()) {
    BuildViewer();
  } else {
    BuildError();
  }
}

frmHelp::~frmHelp() = default;

void frmHelp::PlaceBesideGame(const QWidget& game) {
  PlaceBesideWindow(*this, game, fontMetrics().height() * SmallestWidthInRows);
  place_ = pos();
}

void frmHelp::BuildError() {
  auto* label = new QLabel(QString("The help file ") + HelpFileName + " could not be opened.\n\n" +
                           book_.Error() + "\n\nIt belongs in the program's own folder.");
  label->setObjectName("helpError");
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignCenter);
  label->setMargin(fontMetrics().height());
  setCentralWidget(label);
}

void frmHelp::BuildViewer() {
  auto* splitter = new QSplitter;
  page_ = new HelpPage(book_);
  splitter->addWidget(BuildSide());
  splitter->addWidget(page_);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({width() * 3 / 10, width() * 7 / 10});
  splitter->setChildrenCollapsible(false);
  setCentralWidget(splitter);
  BuildToolBar();
  AddWindowShortcuts();
  // The signal comes before the page calls its new source its own.
  connect(page_, &QTextBrowser::sourceChanged, this, &frmHelp::SelectInContents);
  connect(page_, &HelpPage::LinkLeadsOut, this, [this](const QUrl& link) {
    statusBar()->showMessage("This link leads out of the help: " + link.toDisplayString());
    statusBar()->show();
  });
  OpenPage(QUrl(FirstPage));
}

QWidget* frmHelp::BuildSide() {
  contents_ = book_.ContentsTree();
  contents_->setObjectName("helpContents");
  contents_->setAccessibleName("Contents");
  auto* index = new HelpIndex(book_.Keywords());
  auto* search = new HelpSearch(book_);
  side_ = new QTabWidget;
  side_->setObjectName("helpSide");
  side_->setAccessibleName("Ways to find a page");
  // The tabs are seen whole, however large their letters.
  side_->setElideMode(Qt::ElideNone);
  side_->setUsesScrollButtons(false);
  side_->tabBar()->installEventFilter(this);
  side_->addTab(contents_, "&Contents");
  side_->addTab(index, "&Index");
  side_->addTab(search, "&Search");

  connect(contents_, &QHelpContentWidget::linkActivated, this, &frmHelp::GoToPage);
  connect(contents_, &QHelpContentWidget::clicked, this, [this](const QModelIndex& chosen) {
    const auto* model = qobject_cast<QHelpContentModel*>(contents_->model());
    OpenPage(model->contentItemAt(chosen)->url());
  });
  connect(qobject_cast<QHelpContentModel*>(contents_->model()), &QHelpContentModel::contentsCreated,
          this, &frmHelp::ShowContentsTree);
  connect(index, &HelpIndex::KeywordChosen, this,
          [this](const QString& keyword) { GoToPage(book_.PageOf(keyword)); });
  connect(search, &HelpSearch::PageChosen, this, &frmHelp::OpenPageAt);
  return side_;
}

void frmHelp::BuildToolBar() {
  QToolBar* bar = addToolBar("Navigation");
  bar->setObjectName("helpToolBar");
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  const auto add = [&](const char* name, const QString& text, HelpIcon icon,
                       const QKeySequence& keys, auto action) {
    QAction* entry = bar->addAction(IconOf(icon), text);
    entry->setObjectName(name);
    entry->setShortcut(keys);
    entry->setToolTip(text + " (" + keys.toString(QKeySequence::NativeText) + ")");
    connect(entry, &QAction::triggered, page_, action);
    return entry;
  };
  QAction* back = add("helpBack", "Back", HelpIcon::Back, QKeySequence("Alt+Left"),
                      [this] { ReturnBy(&HelpPage::backward); });
  QAction* forward = add("helpForward", "Forward", HelpIcon::Forward, QKeySequence("Alt+Right"),
                         [this] { ReturnBy(&HelpPage::forward); });
  add("helpHome", "Home", HelpIcon::Home, QKeySequence("Alt+Home"),
      [this] { OpenPage(QUrl(FirstPage)); });
  bar->addSeparator();
  add("helpZoomIn", "Zoom In", HelpIcon::ZoomIn, QKeySequence("Ctrl++"),
      [this] { page_->ZoomBy(1); });
  add("helpZoomOut", "Zoom Out", HelpIcon::ZoomOut, QKeySequence("Ctrl+-"),
      [this] { page_->ZoomBy(-1); });
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

void frmHelp::AddWindowShortcuts() {
  const auto add = [this](const char* keys, auto action) {
    auto* shortcut = new QShortcut(QKeySequence(keys), this);
    connect(shortcut, &QShortcut::activated, page_, action);
  };
  add("Ctrl+=", [this] { page_->ZoomBy(1); });  // the plus key of many keyboards, without Shift
  add("Ctrl+0", [this] { page_->ResetZoom(); });
  add("Ctrl+F", [this] {
    side_->setCurrentIndex(side_->count() - 1);
    side_->currentWidget()->setFocus();
  });
  add("F1", [this] { ShowContents(); });
}

void frmHelp::ShowContentsTree() {
  contents_->expandAll();
  SelectInContents(page_->source());
}

void frmHelp::OpenPage(const QUrl& page) {
  if (page.isEmpty()) return;
  statusBar()->hide();
  page_->setSource(book_.Resolved(page));
}

void frmHelp::OpenPageAt(const QUrl& page, const QStringList& words) {
  OpenPage(page);
  if (!words.isEmpty()) page_->Find(words.first());
  LeadReaderToPage();
}

void frmHelp::GoToPage(const QUrl& page) {
  OpenPage(page);
  LeadReaderToPage();
}

void frmHelp::ReturnBy(void (HelpPage::*step)()) {
  (page_->*step)();
  LeadReaderToPage();
}

// Who does not see the page has to go there.
void frmHelp::LeadReaderToPage() {
  if (QAccessible::isActive()) page_->setFocus();
}

// A place within a page has an entry of its own, which the contents cannot look up: once chosen, it
// stays marked.
void frmHelp::SelectInContents(const QUrl& page) {
  const auto* model = qobject_cast<QHelpContentModel*>(contents_->model());
  const QHelpContentItem* current = model->contentItemAt(contents_->currentIndex());
  if (current != nullptr && current->url() == page) return;
  const QModelIndex item = contents_->indexOf(page);
  if (item.isValid()) contents_->setCurrentIndex(item);
}

void frmHelp::ShowContents() {
  ShowTopic(QString());
}

void frmHelp::ShowTopic(const QString& keyword) {
  if (page_ != nullptr) {
    const QUrl page = book_.PageOf(keyword);
    if (page.isEmpty()) side_->setCurrentWidget(contents_);
    OpenPage(page.isEmpty() ? QUrl(FirstPage) : page);
    page_->setFocus();
  }
  RaiseWindow();
}

// The letter of a tab leads into its field, also of the tab that is in front already.
bool frmHelp::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Shortcut && watched == side_->tabBar()) {
    QMetaObject::invokeMethod(
        this, [this] { side_->currentWidget()->setFocus(); }, Qt::QueuedConnection);
  }
  return QMainWindow::eventFilter(watched, event);
}

void frmHelp::closeEvent(QCloseEvent* event) {
  QMainWindow::closeEvent(event);
  place_ = pos();
}

// A window manager would choose a new place each time.
void frmHelp::RaiseWindow() {
  if (!isVisible() && place_) move(*place_);
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
}
