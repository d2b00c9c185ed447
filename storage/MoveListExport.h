#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "core/GameState.h"

// The list of moves as the player takes it along. In what follows, version is the program's version
// as major and minor number, such as "1.0".

// The last line of what is exported and printed.
QString GeneratedBy(const QString& version);

// A page has two columns of so many moves.
inline constexpr qsizetype RowsOfPage = 32;

// One line a move: its number, ".", a tabulator and the square, which is always the last two
// characters.
QStringList MoveListLines(const GameState& state);

// Every line ends in CR LF; empty for no lines.
QString ClipboardText(const QStringList& lines);

// The file that the name asks for: Rich Text if it ends in ".rtf" in small letters, else plain
// text.
QByteArray ExportedMoveList(const QStringList& lines, const QString& fileName,
                            const QString& version);

QByteArray MoveListAsRichText(const QStringList& lines, const QString& version);
QByteArray MoveListAsPlainText(const QStringList& lines, const QString& version);
