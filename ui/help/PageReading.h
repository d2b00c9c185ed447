#pragma once

#include <QTextCursor>

class QKeyEvent;

// How a page is read aloud, key by key.
namespace PageReading {

enum class Unit { None, Character, Word, Line };

// What is read after the key, as in every text: none if it does not move the text cursor, or
// selects.
Unit After(const QKeyEvent& key);

// What the cursor has reached, selected.
QTextCursor At(const QTextCursor& cursor, Unit unit);

// The text in words where it is none or a sign; never empty.
QString Spoken(const QString& text);

}  // namespace PageReading
