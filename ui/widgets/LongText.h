#pragma once

#include <QString>

class QLabel;

// As many characters as a line of a message or of a tool tip holds.
inline constexpr int CharactersOfLine = 60;

// A text in lines of so many characters at most, joined by line breaks. It is broken between words
// where it can be, and a word that is longer than a line anywhere.
QString InLines(const QString& text, int charactersOfLine);

// Keeps the lines of a label whole in so much width, and wraps those that are longer.
void KeepLinesWhole(QLabel& label, int width);
