#pragma once

#include <QStringList>

#include "ui/application/Announcer.h"
#include "ui/commands/CommandContext.h"
#include "ui/widgets/SecondaryWindow.h"

class DefaultPrinter;
class QAction;
class QLabel;
class QListWidget;
class QMenu;
class QPushButton;

// One window with two uses: the moves of the game, to be taken along, or the commands that can be
// undone and redone, to be gone through. The list's property "tag" holds the row of "No Change" as
// text; it is empty in the first use.
class frmHistory : public SecondaryWindow {
  Q_OBJECT

 public:
  // The context and the printer outlive the window: what is being printed goes on without it.
  frmHistory(const CommandContext& context, DefaultPrinter& printer, QWidget* mainWindow);

  // Each makes the window ready for its use.
  void ListMoves();
  void ListCommands();

  void lstMoves_Click();
  void cmdOptionsOrUndo_Click();
  void cmdClose_Click();
  void mnuEditCopy_Click();
  void mnuEditExport_Click();
  void mnuEditPrint_Click();

  // Waits for the steps being made.
  void done(int result) override;

 private:
  void AddOptions();
  void FillList(const QStringList& rows, const QString& tag);
  QStringList Lines() const;
  bool ListsMoves() const;
  int StepsToCurrentRow() const;
  void GoToCurrentRow();
  void ShowPrinting(const QString& state);

  const CommandContext& context_;
  DefaultPrinter& printer_;
  QListWidget* lstMoves_ = nullptr;
  QPushButton* cmdOptionsOrUndo_ = nullptr;
  QPushButton* cmdClose_ = nullptr;
  QMenu* mnuEdit_ = nullptr;
  QAction* mnuEditPrint_ = nullptr;
  QLabel* lblPrinting_ = nullptr;
  bool stepping_ = false;
  Announcer announcer_;
};
