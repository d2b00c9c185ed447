#pragma once

#include <memory>
#include <optional>

#include <QPoint>

class QDialog;
class SidePanel;
class frmGame;

// For as long as it exists, a dialog has its place beside the board, which it shall not hide. Where
// windows may choose their places, the dialog stands beside the main window, which moves aside for
// want of room; elsewhere it is shown inside of it. The dialog and the window outlive it.
class BesideTheBoard {
 public:
  BesideTheBoard(QDialog& dialog, frmGame& window);
  ~BesideTheBoard();
  BesideTheBoard(const BesideTheBoard&) = delete;
  BesideTheBoard& operator=(const BesideTheBoard&) = delete;

 private:
  frmGame& window_;
  std::unique_ptr<SidePanel> panel_;
  std::optional<QPoint> formerPosition_;
};
