#pragma once

#include <cstdint>
#include <map>

#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include "ui/widgets/PicturePace.h"

// How a value reads.
using Wording = QString (*)(std::int64_t value);
QString AsNumber(std::int64_t value);
// value: the on-screen index of a square.
QString AsSquare(std::int64_t value);

// A label of the size of its longest text, for a value that may change a million times a second.
// Its text is put together when it is painted, asked for or told to a screen reader, and at no
// other time. A new value moves nothing, has nothing painted behind it and is made of characters
// that were drawn before. A screen reader that asks gets the value; of changes it is told soon, but
// no more than once a second while a search is at work.
class ValueLabel : public QWidget {
  Q_OBJECT

 public:
  // The pace outlives the label.
  ValueLabel(PicturePace& pace, const QString& longest, QWidget* parent);

  void ShowValue(std::int64_t value, Wording wording = AsNumber);
  std::int64_t Value() const { return value_; }
  QString Text() const { return wording_(value_); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  struct Look {
    double devicePixelRatio = 0;
    qint64 palette = 0;
    QPalette::ColorGroup group = QPalette::Active;
    bool operator==(const Look&) const = default;
  };

  void TellScreenReader();
  void Forget();
  void DrawBackground();
  const QPixmap& Character(QChar character);

  std::int64_t value_ = 0;
  Wording wording_ = AsNumber;
  PicturePace& pace_;
  PacedPicture picture_;
  QTimer tellScreenReader_;
  QElapsedTimer sinceTold_;
  Look look_;           // that of what was drawn before
  QPixmap background_;  // what its parent shows there, made when first needed
  std::map<QChar, QPixmap> characters_;
};
