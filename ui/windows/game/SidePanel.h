#pragma once

#include <QDockWidget>

class QDialog;
class frmGame;

// Shows a dialog inside the main window, at the right of the board, for as long as it exists. The
// window becomes wider for it where it can; where not, the board gives way and stays whole. The
// rest of the window waits as behind any dialog. Both outlive the panel.
class SidePanel : public QDockWidget {
  Q_OBJECT

 public:
  SidePanel(QDialog& dialog, frmGame& window);
  ~SidePanel() override;

  // As its own Close button does: it may ask, and take its time.
  void CloseDialog();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddDialog();
  void MakeRoom();
  int NeededWidth() const;

  QDialog& dialog_;
  frmGame& window_;
  QWidget* focus_;  // the dialog's control that has the keyboard at first
};
