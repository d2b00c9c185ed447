#include "ui/windows/scores/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const {
  return {0, fontMetrics().height()};
}

QString ElidedLabel::ShownText() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, width(), Qt::TextSingleLine);
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  // As markup, so that the toolkit breaks it into lines; escaped, so that it has no other effect.
  const QString all = ShownText() == text() ? QString() : "<p>" + text().toHtmlEscaped() + "</p>";
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), all, this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, ShownText());
}
