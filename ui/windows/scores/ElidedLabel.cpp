#include "ui/windows/scores/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/widgets/LongText.h"

namespace {

// As markup that shows the text as it stands: a text that looks like markup would be taken for it.
QString ToolTipOf(const QString& text) {
  const QString lines = InLines(text, CharactersOfLine).toHtmlEscaped();
  return "<p style='white-space:pre'>" + lines + "</p>";
}

}  // namespace

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
  const QString tip = ShownText() == text() ? QString() : ToolTipOf(text());
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), static_cast<int>(alignment()) | Qt::TextSingleLine, ShownText());
}
