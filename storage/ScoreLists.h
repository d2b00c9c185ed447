#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include <QString>

#include "storage/IniText.h"
#include "storage/KeptFile.h"

// One rank of a score list. An empty row has empty texts, and its moves count as 0.
struct ScoreRow {
  QString name = QString();
  QString moves = QString();
  QString timeText = QString();  // as it is shown
  std::int32_t time = 0;         // half-seconds

  friend bool operator==(const ScoreRow&, const ScoreRow&) = default;
};

// Rank 1 first.
inline constexpr int ScoreRowCount = 10;
using ScoreRows = std::array<ScoreRow, ScoreRowCount>;

enum class ScoreList { High, Low };

// What is offered to a list.
struct FinishedGame {
  std::int16_t totalMoves;
  std::int32_t totalTime;  // half-seconds
};

// The high list is for good games, the low one for those who got stuck early.
ScoreList ListOf(const FinishedGame& game);

// "High Scores" or "Low Scores": the section of the file, and the caption of the list.
QString ScoreSection(ScoreList list);

// The rows of a list; what the values do not have stays empty.
ScoreRows RowsFrom(const IniValues& values, ScoreList list);

// The place 0..9 that the game takes among the rows, or ScoreRowCount when it does not rank. A game
// that equals another one goes below it.
int InsertionPlace(ScoreList list, const ScoreRows& rows, const FinishedGame& game);

// Moves the rows from place 0..9 on down by one, drops the last one and puts in the new one.
void InsertScore(ScoreRows& rows, int place, const ScoreRow& row);

// The row of a game under a name.
ScoreRow RowOf(const FinishedGame& game, const QString& name);

// The 30 keys of a list.
std::vector<IniEntry> ScoreEntries(ScoreList list, const ScoreRows& rows);

// Enters the game into the list as the file has it when it is written, so that a score which
// another running copy of the program wrote meanwhile is kept. A game that does not rank any more
// changes nothing.
void SaveScore(KeptFile& file, ScoreList list, const FinishedGame& game, const QString& name);
