#pragma once

#include <map>

#include <QLabel>
#include <QPixmap>
#include <QTimer>

// A label of the size of its longest text, for a value that changes thousands of times a second: a
// new value moves nothing, has nothing painted behind it and is put together from characters that
// were drawn before. A screen reader that asks gets the value; of changes it is told a few times a
// second.
class ValueLabel : public QLabel {
 public:
  ValueLabel(const QString& longest, QWidget* parent);

  void ShowValue(const QString& value);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void Forget();
  void DrawBackground();
  const QPixmap& Character(QChar character);

  QTimer tellScreenReader_;
  QPixmap background_;  // what its parent shows there, made when first needed
  std::map<QChar, QPixmap> characters_;
};
