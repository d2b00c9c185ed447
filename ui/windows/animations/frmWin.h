#pragma once

#include <QTimer>

#include "core/Random.h"
#include "ui/widgets/SecondaryWindow.h"

class Canvas;

// The firework for a tour of all 64 squares that the player made alone. It runs for as long as the
// window is seen.
class frmWin : public SecondaryWindow {
  Q_OBJECT

 public:
  // manyColors: random bright ones; otherwise those of a palette of seven.
  frmWin(bool manyColors, QWidget* mainWindow);

  void tmrDraw_Timer();
  void cmdOK_Click();

  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Form_Load();
  void Form_Unload();
  void DrawSmallText();
  void DrawTitle();
  QColor NextColor();

  Canvas* picWin_;
  QTimer tmrDraw_{this};
  Random random_;
  QColor drawingColor_ = Qt::black;
  bool running_ = false;
  const bool manyColors_;
};
