#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include <QString>

#include "storage/ErrorTable.h"
#include "storage/IniText.h"

// One rank of a score list. An empty row has empty texts, and its moves count as 0.
struct ScoreRow {
  QString name = QString();
  QString moves = QString();
  QString timeText = QString();  // as it is shown
  std::int32_t time = 0;         // half-seconds

  friend bool operator==(const ScoreRow&, const ScoreRow&) = default;
};

// Rank 1 first.
using ScoreRows = std::array<ScoreRow, 10>;

// A game that is offered to a list. The low list is for those who got stuck early.
struct OfferedGame {
  std::int16_t totalMoves;
  std::int32_t totalTime;  // half-seconds
  bool highScore;
};

// Games of more squares than these belong to the high list.
inline constexpr int MostLowMoves = 32;

// "High Scores" or "Low Scores": the section of the file, and the caption of the list.
QString ScoreSection(bool highScore);

// The rows of a list; what the values, or those of the file, do not have stays empty.
ScoreRows RowsFrom(const IniValues& values, const QString& section);
ScoreRows ReadScores(const QString& pathName, const QString& section);

// The place 0..9 that the game takes among the rows, or 10 when it does not rank. A game that
// equals another one goes below it.
int InsertionPlace(const ScoreRows& rows, const OfferedGame& game);

// Moves the rows from place 0..9 on down by one, drops the last one and puts in the new one.
void InsertScore(ScoreRows& rows, int place, const ScoreRow& row);

// The row of a game under a name.
ScoreRow RowOf(const OfferedGame& game, const QString& name);

// The 30 keys of a list.
std::vector<IniEntry> ScoreEntries(const QString& section, const ScoreRows& rows);

// Enters the game into the list as the file has it now, so that a score which another running copy
// of the program wrote meanwhile is kept, and writes the list. A game that does not rank any more
// changes nothing.
std::optional<ProgramError> SaveScore(const QString& pathName, const OfferedGame& game,
                                      const QString& name);
