#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "storage/BoardLook.h"
#include "ui/application/ReaderCursor.h"

class QPainter;

// The picture of a preview. Without a picture it is not seen.
class PreviewImage : public QWidget {
 public:
  explicit PreviewImage(QWidget* parent);

  void SetPicture(const QImage& picture);
  bool HasPicture() const { return !picture_.isNull(); }
  // Stretched over the preview, or in its own size in the middle.
  void SetPositioning(Positioning positioning);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintInTheMiddle(QPainter& painter);
  void PaintStretched(QPainter& painter);

  QImage picture_;
  QPixmap stretched_;  // for the present screen
  Positioning positioning_ = Positioning::Stretched;
};

// Shows a colour within a line, and a picture over it. Where a screen reader listens, it is a stop
// of the tab key and says what it shows.
class Swatch : public QWidget {
 public:
  explicit Swatch(QWidget* parent);

  void SetColor(Color color);
  PreviewImage& Image() { return *image_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  Color color_ = 0;
  PreviewImage* image_;
  ReaderCursor reader_{*this};
};
