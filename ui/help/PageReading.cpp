#include "ui/help/PageReading.h"

#include <algorithm>
#include <iterator>

#include <QKeyEvent>

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

// Alone, they are not spoken.
struct Sign {
  const char* sign;
  const char* name;
};

constexpr Sign Signs[] = {
    {".", "dot"},        {",", "comma"},       {";", "semicolon"},    {":", "colon"},
    {"!", "exclaim"},    {"?", "question"},    {"\"", "quote"},       {"'", "apostrophe"},
    {"(", "left paren"}, {")", "right paren"}, {"[", "left bracket"}, {"]", "right bracket"},
    {"+", "plus"},       {"-", "dash"},        {"*", "star"},         {"/", "slash"},
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

QTextCursor PageReading::At(const QTextCursor& cursor, Unit unit) {
  QTextCursor read = cursor;
  read.clearSelection();
  if (unit == Unit::Line) read.movePosition(QTextCursor::StartOfLine);
  read.movePosition(EndOf(unit), QTextCursor::KeepAnchor);
  return read;
}

QString PageReading::Spoken(const QString& text) {
  if (text == " ") return "space";
  const QString trimmed = text.trimmed();
  if (trimmed.isEmpty()) return "blank";
  const auto* const sign = std::find_if(std::begin(Signs), std::end(Signs),
                                        [&](const Sign& known) { return trimmed == known.sign; });
  return sign == std::end(Signs) ? trimmed : sign->name;
}
