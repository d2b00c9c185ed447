#pragma once

#include <map>

#include <QLabel>
#include <QPixmap>

// A label of the size of its longest text, for a value that changes thousands of times a second: a
// new value moves nothing, has nothing painted behind it and is put together from characters that
// were drawn before. A screen reader gets it as it gets every label.
class ValueLabel : public QLabel {
 public:
  ValueLabel(const QString& longest, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void Forget();
  void DrawBackground();
  const QPixmap& Character(QChar character);

  QPixmap background_;  // what its parent shows there, made when first needed
  std::map<QChar, QPixmap> characters_;
};
