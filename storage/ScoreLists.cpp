#include "storage/ScoreLists.h"

#include <algorithm>

#include "core/GameState.h"
#include "core/NumberText.h"
#include "core/TimeString.h"
#include "storage/NumberParser.h"

namespace {

// "Name 1" .. "Name 10".
QString KeyOf(const char* column, std::size_t row) {
  return column + QString::fromStdString(NumberText(static_cast<std::int64_t>(row) + 1));
}

QString TextOfTime(std::int32_t halfSeconds) {
  return QString::fromStdString(TimeString(halfSeconds));
}

ScoreRow ReadRow(const IniValues& values, const QString& section, std::size_t row) {
  const auto find = [&](const char* column) { return values.Value(section, KeyOf(column, row)); };
  const QString time = find("Time");
  const std::int32_t halfSeconds = LenientInt32(time);
  return {find("Name"), find("Moves"), time.isEmpty() ? QString() : TextOfTime(halfSeconds),
          halfSeconds};
}

const ScoreRow& RowAt(const ScoreRows& rows, int place) {
  return rows.at(static_cast<std::size_t>(place));
}

int MovesAt(const ScoreRows& rows, int place) {
  return LenientInt32(RowAt(rows, place).moves);
}

int PlaceInLowList(const ScoreRows& rows, const FinishedGame& game) {
  int place = 0;
  while (place < ScoreRowCount && MovesAt(rows, place) > 0 &&
         MovesAt(rows, place) < game.totalMoves) {
    ++place;
  }
  while (place < ScoreRowCount && MovesAt(rows, place) == game.totalMoves &&
         RowAt(rows, place).time <= game.totalTime) {
    ++place;
  }
  return place;
}

int PlaceInHighList(const ScoreRows& rows, const FinishedGame& game) {
  int place = ScoreRowCount;
  while (place > 0 && MovesAt(rows, place - 1) < game.totalMoves) --place;
  while (place > 0 && MovesAt(rows, place - 1) == game.totalMoves &&
         RowAt(rows, place - 1).time > game.totalTime) {
    --place;
  }
  return place;
}

}  // namespace

ScoreList ListOf(const FinishedGame& game) {
  return game.totalMoves >= GoodGame ? ScoreList::High : ScoreList::Low;
}

QString ScoreSection(ScoreList list) {
  return list == ScoreList::High ? "High Scores" : "Low Scores";
}

ScoreRows RowsFrom(const IniValues& values, ScoreList list) {
  ScoreRows rows;
  const QString section = ScoreSection(list);
  for (std::size_t row = 0; row < rows.size(); ++row) rows[row] = ReadRow(values, section, row);
  return rows;
}

int InsertionPlace(ScoreList list, const ScoreRows& rows, const FinishedGame& game) {
  return list == ScoreList::High ? PlaceInHighList(rows, game) : PlaceInLowList(rows, game);
}

void InsertScore(ScoreRows& rows, int place, const ScoreRow& row) {
  const auto begin = rows.begin() + place;
  std::rotate(begin, rows.end() - 1, rows.end());
  *begin = row;
}

ScoreRow RowOf(const FinishedGame& game, const QString& name) {
  return {name, QString::number(game.totalMoves), TextOfTime(game.totalTime), game.totalTime};
}

std::vector<IniEntry> ScoreEntries(ScoreList list, const ScoreRows& rows) {
  std::vector<IniEntry> entries;
  const QString section = ScoreSection(list);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const bool isEmpty = rows[row] == ScoreRow();
    entries.push_back({section, KeyOf("Name", row), rows[row].name});
    entries.push_back({section, KeyOf("Moves", row), rows[row].moves});
    entries.push_back(
        {section, KeyOf("Time", row), isEmpty ? QString() : QString::number(rows[row].time)});
  }
  return entries;
}

void SaveScore(KeptFile& file, ScoreList list, const FinishedGame& game, const QString& name) {
  file.Change([=](const QByteArray& text) {
    ScoreRows rows = RowsFrom(IniValues(text), list);
    const int place = InsertionPlace(list, rows, game);
    if (place == ScoreRowCount) return text;
    InsertScore(rows, place, RowOf(game, name));
    return ReplaceIniValues(text, ScoreEntries(list, rows));
  });
}
