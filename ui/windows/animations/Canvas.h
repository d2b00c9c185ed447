#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QWidget>

#include "core/Random.h"

// The time between two passes of an animation. A pass costs a fraction of a millisecond, so this
// leaves nearly all of a core to others.
inline constexpr int DrawIntervalMilliseconds = 40;

// Whether the screen can show more colours than a palette of 256.
bool HasManyColors(const QScreen& screen);

// One of the seven colours of a screen that has few.
QColor RandomPaletteColor(Random& random);

// "Times New Roman" in a size that keeps its proportion to places in twips.
QFont CanvasFont(int points, bool bold, bool italic);

// What a firework is drawn on: a picture that keeps what was drawn, as sharp as the screen. Places
// are in twips from the top left corner and may lie outside it.
class Canvas : public QWidget {
 public:
  explicit Canvas(QWidget* parent);

  // Begins afresh with a plain colour and over it, if there is one, a picture stretched to all of
  // the view. The view has its final size by then.
  void Clear(const QColor& color, const QPixmap& picture = QPixmap());
  // Whether the view has come to a screen of another sharpness, so that Clear is called for.
  bool IsBlurred() const;

  double ScaleWidth() const;
  double ScaleHeight() const;
  // A random place that may lie a little to the left of the view or above it.
  QPointF RandomPlace(Random& random) const;

  // Draws a point; the next text is printed just below and to the right of it.
  void SetPoint(const QPointF& place, const QColor& color);
  void Print(const QString& text, const QFont& font, const QColor& color);

  const QPixmap& Picture() const { return picture_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
  QPointF textPosition_;  // in logical pixels
};
