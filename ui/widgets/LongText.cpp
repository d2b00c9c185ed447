#include "ui/widgets/LongText.h"

#include <algorithm>

#include <QLabel>
#include <QTextBoundaryFinder>

namespace {

// The last place up to the limit at which the text may be broken.
qsizetype BreakIn(const QString& text, qsizetype begin, qsizetype limit) {
  QTextBoundaryFinder words(QTextBoundaryFinder::Line, text);
  // A blank at the end of a line takes no room.
  const bool endsInBlank = text[limit].isSpace();
  words.setPosition(limit + (endsInBlank ? 2 : 1));
  const qsizetype between = words.toPreviousBoundary();
  if (between > begin) return between;
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
  characters.setPosition(limit + 1);
  const qsizetype anywhere = characters.toPreviousBoundary();
  return anywhere > begin ? anywhere : limit;
}

}  // namespace

QString InLines(const QString& text, int charactersOfLine) {
  QString lines;
  qsizetype begin = 0;
  while (text.size() - begin > charactersOfLine) {
    const qsizetype end = BreakIn(text, begin, begin + charactersOfLine);
    lines += text.sliced(begin, end - begin).trimmed() + '\n';
    begin = end;
  }
  return lines + text.sliced(begin);
}

void KeepLinesWhole(QLabel& label, int width) {
  const int widest = label.fontMetrics().size(0, label.text()).width();
  label.setWordWrap(true);
  label.setMinimumWidth(std::min(widest + 1, width));
}
