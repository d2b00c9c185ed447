#pragma once

#include <QString>

class QKeyEvent;
class QTextCursor;

// How a page is read aloud, key by key.
namespace PageReading {

enum class Unit { None, Character, Word, Line };

// What is read after the key, as in every text: none if it does not move the text cursor, or
// selects.
Unit After(const QKeyEvent& key);

// What the cursor has reached; never empty.
QString At(const QTextCursor& cursor, Unit unit);

}  // namespace PageReading
