#include "ui/help/PageReading.h"

#include <algorithm>
#include <iterator>

#include <QKeyEvent>
#include <QTextCursor>

using PageReading::Unit;

namespace {

struct Movement {
  QKeySequence::StandardKey key;
  Unit unit;
};

constexpr Movement Movements[] = {
    {QKeySequence::MoveToNextChar, Unit::Character},
    {QKeySequence::MoveToPreviousChar, Unit::Character},
    {QKeySequence::MoveToStartOfLine, Unit::Character},
    {QKeySequence::MoveToEndOfLine, Unit::Character},
    {QKeySequence::MoveToNextWord, Unit::Word},
    {QKeySequence::MoveToPreviousWord, Unit::Word},
    {QKeySequence::MoveToNextLine, Unit::Line},
    {QKeySequence::MoveToPreviousLine, Unit::Line},
    {QKeySequence::MoveToNextPage, Unit::Line},
    {QKeySequence::MoveToPreviousPage, Unit::Line},
    {QKeySequence::MoveToStartOfBlock, Unit::Line},
    {QKeySequence::MoveToEndOfBlock, Unit::Line},
    {QKeySequence::MoveToStartOfDocument, Unit::Line},
    {QKeySequence::MoveToEndOfDocument, Unit::Line},
};

QTextCursor::MoveOperation EndOf(Unit unit) {
  switch (unit) {
    case Unit::Line:
      return QTextCursor::EndOfLine;
    case Unit::Word:
      return QTextCursor::NextWord;
    default:
      return QTextCursor::NextCharacter;
  }
}

}  // namespace

Unit PageReading::After(const QKeyEvent& key) {
  const auto* const found =
      std::find_if(std::begin(Movements), std::end(Movements),
                   [&](const Movement& movement) { return key.matches(movement.key); });
  return found == std::end(Movements) ? Unit::None : found->unit;
}

QString PageReading::At(const QTextCursor& cursor, Unit unit) {
  QTextCursor read = cursor;
  read.clearSelection();
  if (unit == Unit::Line) read.movePosition(QTextCursor::StartOfLine);
  read.movePosition(EndOf(unit), QTextCursor::KeepAnchor);
  const QString text = read.selectedText();
  if (!text.trimmed().isEmpty()) return text.trimmed();
  return text == " " && unit == Unit::Character ? "space" : "blank";
}
