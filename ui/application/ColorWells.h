#pragma once

#include <functional>

#include <QColor>
#include <QObject>
#include <QString>

#include "ui/application/ReaderCursor.h"

class QColorDialog;
class QWidget;

// As it is said: "red 170, green 0, blue 255".
QString SpokenColor(const QColor& color);

// The squares of colours in Qt's colour dialog, of which Qt tells screen readers nothing. The one
// that the arrow keys have reached is told, and whether it is the one that is chosen.
class ColorWells : public QObject {
  Q_OBJECT

 public:
  using Colors = std::function<QColor(int row, int column)>;

  // For the basic and the custom colours of the dialog, and as long as it.
  static void LeadReaders(QColorDialog& dialog);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  ColorWells(QWidget& wells, Colors colors);

  Q_SLOT void MoveTo(int row, int column);
  // withCaption: with what the squares are called, for a player who has just come to them.
  void Tell(bool withCaption);
  // Negative where none of these squares is chosen.
  int ChosenRow() const;
  int ChosenColumn() const;

  QWidget& wells_;
  Colors colors_;
  int row_;
  int column_;
  ReaderCursor reader_;
};
