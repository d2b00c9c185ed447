#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

// Shows a picture that covers all of it, whatever its proportions, as sharp as the screen. Without
// a picture it shows what is behind it.
class CoverPicture : public QWidget {
 public:
  explicit CoverPicture(QWidget* parent) : QWidget(parent) {}

  void SetPicture(const QImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
  QPixmap scaled_;  // for the present size and screen
};
