#pragma once

#include <QTimer>

#include "app/Globals.h"
#include "core/Random.h"
#include "ui/widgets/SecondaryWindow.h"

class Canvas;
class QLabel;
class QVBoxLayout;

// Tells what the program is. A double-click on its picture starts an animation, which runs for as
// long as the window is seen.
class frmAbout : public SecondaryWindow {
  Q_OBJECT

 public:
  // manyColors: the screen has more than a palette of 256.
  frmAbout(const Globals& globals, bool manyColors, QWidget* mainWindow);

  void picAboutImage_DblClick();
  void cmdOK_Click();

  void done(int result) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Form_Load();
  void Form_Unload();
  QVBoxLayout* AddTexts();
  QLabel* AddLabel(const char* name, const QString& text, int points);
  QWidget* AddLine();
  void ShowPicture();
  QPixmap PictureOrIcon() const;
  void Animate();
  void DrawInitials();
  void DrawTitle();
  QColor NextColor();

  const Globals& globals_;
  Canvas* picAboutImage_;
  QLabel* lblVersion_ = nullptr;
  QTimer tmrAnimation_{this};
  Random random_;
  QColor drawingColor_ = Qt::black;
  bool AnimationRunning_ = false;
  const bool ManyColors_;
};
