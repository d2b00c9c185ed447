#include "ui/windows/history/frmHistory.h"

#include <algorithm>

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QItemSelection>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "app/Globals.h"
#include "storage/MoveListExport.h"
#include "ui/commands/CommandHistory.h"
#include "ui/commands/MoveHistory.h"
#include "ui/widgets/NamedControls.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/windows/history/DefaultPrinter.h"
#include "ui/windows/history/MoveListPage.h"

namespace {

constexpr const char* Tag = "tag";
constexpr const char* Printing = "Printing...";
constexpr int VisibleRows = 18;
constexpr int ListWidthInRows = 14;

}  // namespace

frmHistory::frmHistory(const CommandContext& context, DefaultPrinter& printer, QWidget* mainWindow)
    : SecondaryWindow(mainWindow, "frmHistory"), context_(context), printer_(printer) {
  lstMoves_ = new QListWidget(this);
  lstMoves_->setObjectName("lstMoves");
  connect(lstMoves_, &QListWidget::currentRowChanged, this, &frmHistory::lstMoves_Click);
  cmdOptionsOrUndo_ = AddButton(this, "cmdOptionsOrUndo", "", &frmHistory::cmdOptionsOrUndo_Click);
  cmdClose_ = AddButton(this, "cmdClose", "", &frmHistory::cmdClose_Click);
  UseNoDefaultButton();
  AddOptions();
  lblPrinting_ = AddLabel(this, "lblPrinting", QString());
  connect(&printer_, &DefaultPrinter::Finished, this,
          [this](bool printed) { ShowPrinting(printed ? "Sent to the printer." : QString()); });
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdOptionsOrUndo_);
  buttons->addWidget(cmdClose_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lstMoves_);
  layout->addWidget(lblPrinting_);
  layout->addLayout(buttons);
  const int row = fontMetrics().height();
  lstMoves_->setMinimumSize(
      QSize(ListWidthInRows * row, VisibleRows * row).boundedTo(screen()->availableSize() / 2));
  lstMoves_->setFocus();
  PlaceDialog(*this, *mainWindow);
}

void frmHistory::AddOptions() {
  mnuEdit_ = new QMenu(this);
  mnuEdit_->setObjectName("mnuEdit");
  mnuEdit_->setAccessibleName("Options");
  announcer_.SayOpeningOf(*mnuEdit_);
  const auto add = [this](const char* name, const char* caption) {
    QAction* entry = mnuEdit_->addAction(caption);
    entry->setObjectName(name);
    return entry;
  };
  connect(add("mnuEditCopy", "Copy &Moves to Clipboard"), &QAction::triggered, this,
          &frmHistory::mnuEditCopy_Click);
  connect(add("mnuEditExport", "&Save Moves to File..."), &QAction::triggered, this,
          &frmHistory::mnuEditExport_Click);
  mnuEditPrint_ = add("mnuEditPrint", "&Print Moves on Default Printer");
  connect(mnuEditPrint_, &QAction::triggered, this, &frmHistory::mnuEditPrint_Click);
  add("mnuEditCancel", "&Cancel");
}

void frmHistory::ListMoves() {
  setWindowTitle("Move History");
  lstMoves_->setAccessibleName("Moves");
  cmdOptionsOrUndo_->setText("&Options");
  cmdOptionsOrUndo_->setAccessibleDescription("has a menu");
  cmdClose_->setText("&Close");
  FillList(MoveListLines(context_.state), QString());
  ShowPrinting(printer_.IsPrinting() ? Printing : QString());
}

void frmHistory::ListCommands() {
  setWindowTitle("Command History");
  lstMoves_->setAccessibleName("Commands");
  cmdClose_->setText("Cancel");
  lblPrinting_->hide();
  // What is selected follows from the row that the player goes to, and from nothing else.
  lstMoves_->setSelectionMode(QListWidget::NoSelection);
  const CommandList commands = CommandsOf(context_.state);
  QStringList rows;
  for (const std::string& row : commands.rows) rows += QString::fromStdString(row);
  FillList(rows, QString::number(commands.noChange));
  lstMoves_->setCurrentRow(commands.noChange);
}

void frmHistory::FillList(const QStringList& rows, const QString& tag) {
  const QSignalBlocker silence(lstMoves_);
  lstMoves_->clear();
  lstMoves_->setProperty(Tag, tag);
  lstMoves_->addItems(rows);
}

bool frmHistory::ListsMoves() const {
  return lstMoves_->property(Tag).toString().isEmpty();
}

QStringList frmHistory::Lines() const {
  QStringList lines;
  for (int row = 0; row < lstMoves_->count(); ++row) lines += lstMoves_->item(row)->text();
  return lines;
}

int frmHistory::StepsToCurrentRow() const {
  return lstMoves_->currentRow() - lstMoves_->property(Tag).toInt();
}

void frmHistory::lstMoves_Click() {
  if (ListsMoves() || stepping_ || lstMoves_->currentRow() < 0) return;
  const int steps = StepsToCurrentRow();
  const int row = lstMoves_->currentRow();
  const int nearest = row - steps + std::clamp(steps, -1, 1);
  const auto at = [this](int number) { return lstMoves_->model()->index(number, 0); };
  lstMoves_->selectionModel()->select(
      QItemSelection(at(std::min(row, nearest)), at(std::max(row, nearest))),
      QItemSelectionModel::ClearAndSelect);
  cmdOptionsOrUndo_->setText(steps == 0 ? "Undo/Redo" : steps > 0 ? "Re&do" : "Un&do");
  cmdOptionsOrUndo_->setEnabled(steps != 0);
}

void frmHistory::cmdOptionsOrUndo_Click() {
  if (ListsMoves()) {
    mnuEdit_->popup(cmdOptionsOrUndo_->mapToGlobal(QPoint(0, cmdOptionsOrUndo_->height())));
  } else if (!stepping_) {
    GoToCurrentRow();
  }
}

void frmHistory::GoToCurrentRow() {
  {
    const QScopedValueRollback stepping(stepping_, true);
    StepThroughCommands(context_, StepsToCurrentRow());
  }
  accept();
}

void frmHistory::cmdClose_Click() {
  close();
}

void frmHistory::mnuEditCopy_Click() {
  QGuiApplication::clipboard()->setText(ClipboardText(Lines()));
  announcer_.Say("moves copied");
}

void frmHistory::mnuEditExport_Click() {
  ExportMoves(context_, Lines());
}

void frmHistory::mnuEditPrint_Click() {
  printer_.Print("Move List", [lines = Lines()](const QPageSize& paper) {
    return MoveListPage(lines, ShortVersion(), paper);
  });
  ShowPrinting(Printing);
}

// Only one document is printed at a time.
void frmHistory::ShowPrinting(const QString& state) {
  lblPrinting_->setText(state);
  mnuEditPrint_->setEnabled(!printer_.IsPrinting());
}

void frmHistory::done(int result) {
  if (stepping_) return context_.pace.Hurry();
  QDialog::done(result);
}
