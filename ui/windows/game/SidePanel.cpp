#include "ui/windows/game/SidePanel.h"

#include <algorithm>

#include <QCloseEvent>
#include <QDialog>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/board/BoardView.h"
#include "ui/widgets/DialogFitting.h"
#include "ui/windows/game/frmGame.h"

namespace {

constexpr int SmallestBoard = 240;

}  // namespace

SidePanel::SidePanel(QDialog& dialog, frmGame& window)
    : QDockWidget(dialog.windowTitle(), &window),
      dialog_(dialog),
      window_(window),
      focus_(dialog.focusWidget()) {
  setObjectName("sidePanel");
  setFeatures(DockWidgetClosable);
  setContextMenuPolicy(Qt::PreventContextMenu);
  window_.menuBar()->setEnabled(false);
  window_.Board().setFocusPolicy(Qt::NoFocus);
  AddDialog();
  MakeRoom();
}

void SidePanel::AddDialog() {
  const int titleBar = 2 * fontMetrics().height();
  FitDialog(dialog_,
            {window_.screen()->availableSize().width(), window_.Board().height() - titleBar});
  auto* holder = new QWidget(this);
  auto* column = new QVBoxLayout(holder);
  column->setContentsMargins(0, 0, 0, 0);
  dialog_.setParent(holder, Qt::Widget);
  dialog_.installEventFilter(this);
  column->addWidget(&dialog_);
  column->addStretch();
  setWidget(holder);
  window_.addDockWidget(Qt::RightDockWidgetArea, this);
}

int SidePanel::NeededWidth() const {
  return sizeHint().width() +
         style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, &window_);
}

// Only the width changes: the window becomes square again by its height.
void SidePanel::MakeRoom() {
  const int smallest = NeededWidth() + std::min(SmallestBoard, window_.Board().height());
  if (window_.HasGivenShape() || window_.width() >= smallest) return;
  window_.resize(smallest, window_.height());
}

SidePanel::~SidePanel() {
  dialog_.removeEventFilter(this);
  dialog_.setParent(nullptr);
  window_.removeDockWidget(this);
  window_.menuBar()->setEnabled(true);
  window_.Board().setFocusPolicy(Qt::StrongFocus);
  window_.Board().setFocus();
}

void SidePanel::CloseDialog() {
  dialog_.close();
}

void SidePanel::closeEvent(QCloseEvent* event) {
  event->ignore();
  CloseDialog();
}

// Before it is shown the dialog cannot take the keyboard.
bool SidePanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &dialog_ && event->type() == QEvent::Show && focus_ != nullptr) {
    focus_->setFocus(Qt::TabFocusReason);
  }
  return QDockWidget::eventFilter(watched, event);
}
