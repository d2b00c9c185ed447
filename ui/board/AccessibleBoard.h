#pragma once

#include <array>
#include <optional>

#include <QAccessibleWidget>

#include "core/Square.h"
#include "ui/application/AccessibleLeaf.h"
#include "ui/application/SpokenText.h"

class BoardView;

// The board as a screen reader meets it: a table of 8 by 8 cells, each named by its square,
// described by its state and pressed like a click.
class AccessibleBoard : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit AccessibleBoard(BoardView& view);
  ~AccessibleBoard() override;

  // Makes Qt ask for such an interface for every BoardView; once per program.
  static void Install();
  // A child's number goes along the rows, as tables are read.
  static int ChildOfSquare(int index) { return RowOf(index) * BoardSide + ColumnOf(index); }

  void* interface_cast(QAccessible::InterfaceType type) override;
  int childCount() const override { return SquareCount; }
  QAccessibleInterface* child(int number) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override;
  int selectedCellCount() const override { return 0; }
  QList<QAccessibleInterface*> selectedCells() const override { return {}; }
  QString columnDescription(int column) const override;
  QString rowDescription(int row) const override;
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  int columnCount() const override { return BoardSide; }
  int rowCount() const override { return BoardSide; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  BoardView& view_;
  mutable std::array<QAccessible::Id, SquareCount> squares_{};  // 0: not asked for yet
};

// One square of it. Readers that go over the screen line by line find what it is as its text.
class AccessibleSquare : public AccessibleLeaf,
                         public QAccessibleTableCellInterface,
                         public QAccessibleActionInterface {
 public:
  AccessibleSquare(BoardView& view, int index) : view_(view), index_(index) {}

  int Index() const { return index_; }

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessibleInterface* parent() const override;
  QAccessible::Role role() const override { return QAccessible::Cell; }
  QAccessible::State state() const override;
  QRect rect() const override;
  QString text(QAccessible::Text text) const override;

  bool isSelected() const override { return false; }
  QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return ColumnOf(index_); }
  int rowIndex() const override { return RowOf(index_); }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& actionName) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  BoardView& view_;
  int index_;
  std::optional<SpokenText> words_;  // since they were last asked for
};
