#include "ui/windows/game/BesideTheBoard.h"

#include "ui/board/BoardView.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/windows/game/SidePanel.h"
#include "ui/windows/game/frmGame.h"

BesideTheBoard::BesideTheBoard(QDialog& dialog, frmGame& window) : window_(window) {
  if (WindowsHavePlaces()) {
    formerPosition_ = PlaceBeside(dialog, window, window.Board());
  } else {
    panel_ = std::make_unique<SidePanel>(dialog, window);
  }
}

BesideTheBoard::~BesideTheBoard() {
  if (formerPosition_) window_.move(*formerPosition_);
  if (panel_ == nullptr) return;
  panel_.reset();
  window_.Form_Resize();
}
