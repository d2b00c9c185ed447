#pragma once

#include <array>

#include <QRadioButton>

#include "core/Square.h"
#include "storage/BoardLook.h"
#include "ui/application/Announcer.h"

// One square of the preview board: a choice among the 64.
class PreviewCell : public QRadioButton {
  Q_OBJECT

 public:
  // look outlives the cell.
  PreviewCell(int index, const BoardLook& look, QWidget* parent);

 signals:
  // keyCode: the Windows virtual-key code of a key that was released.
  void KeyUp(int keyCode);

 protected:
  bool hitButton(const QPoint& position) const override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  const int index_;
  const BoardLook& look_;
};

// A small board in the colours of the look, on which the starting square is picked by a click or
// with the keys. Exactly one cell is selected.
class PreviewBoard : public QWidget {
  Q_OBJECT

 public:
  // look outlives the board.
  PreviewBoard(const BoardLook& look, QWidget* parent);

  // Makes a cell the selected one.
  void SetupLittleChessboard(int index);
  // Shows the colours that the look has now.
  void ReColorChessboard();
  int SelectedX() const { return selectedX_; }
  int SelectedY() const { return selectedY_; }

 signals:
  // A square was picked.
  void Clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void pctGrid_Click(int index);
  void pctGrid_KeyUp(int keyCode);
  void TellEdge();

  std::array<PreviewCell*, SquareCount> pctGrid_{};
  int selectedX_ = 0;
  int selectedY_ = 0;
  Announcer announcer_;
};
