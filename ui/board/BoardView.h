#pragma once

#include <QWidget>

#include "core/GameState.h"
#include "ui/board/BoardAnnouncer.h"
#include "ui/board/BoardLayout.h"
#include "ui/board/BoardModel.h"
#include "ui/board/BoardPictures.h"
#include "ui/board/CellPainter.h"
#include "ui/widgets/PicturePace.h"

// The inside of the main window: the board of 64 cells in its frame. It paints what the model holds
// and turns pointer and keys into squares and key codes; it knows no rule. To a screen reader it is
// the table "Chessboard" of 8 by 8 cells.
class BoardView : public QWidget {
  Q_OBJECT

 public:
  // Game and pace outlive the view.
  BoardView(const GameState& state, PicturePace& pace, QWidget* parent = nullptr);

  const GameState& State() const { return state_; }
  BoardAnnouncer& Announcer() { return announcer_; }
  BoardModel& Model() { return model_; }
  const BoardModel& Model() const { return model_; }

  // Makes the whole board be painted again.
  void SetPictures(BoardPictures pictures);
  void SetBackground(Color color, bool showImage);
  // cornerDistance: twips. Takes effect with the next LayOut.
  void SetCornerDistance(int cornerDistance) { cornerDistance_ = cornerDistance; }
  // Fits the squares to the height of the view, or to its width where that is less.
  void LayOut(const BoardLook& look);
  // Has the cells that changed since the last call painted with the next events, or at the pace of
  // the display.
  void ShowChanges();

  // Logical pixels, relative to the view.
  QRect SquareRectangle(int index) const;
  // -1 outside the board.
  int SquareAtPosition(QPointF position) const;

  // As a click does.
  void Press(int square);

  // How many cells were painted since the program began.
  std::uint64_t PaintedCells() const { return paintedCells_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A press and release of the left button on one square.
  void SquareClicked(int index);
  void SquareEntered(int index);
  // keyCode: a Windows virtual-key code.
  void KeyPressed(int keyCode);
  void Resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int InnerSide() const;
  void PaintEverything();
  void PaintChanges();
  QRegion RegionOf(BoardModel::CellSet cells) const;
  void PaintCells(QPainter& painter, const QRegion& region);
  void PaintBackground(QPainter& painter, const QRegion& region);

  const GameState& state_;
  PacedPicture picture_;
  BoardModel model_;
  BoardLayout layout_;
  int cornerDistance_ = 0;
  Color backgroundColor_ = 0;
  bool showBackgroundImage_ = false;
  BoardPictures pictures_;
  CellPainter cellPainter_;
  QPixmap background_;  // the background image in its present size, made when first needed
  int pressedSquare_ = -1;
  BoardAnnouncer announcer_{*this};
  std::uint64_t paintedCells_ = 0;
};
