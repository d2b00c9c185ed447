#pragma once

#include <array>
#include <optional>

#include <QWidget>

#include "storage/ScoreLists.h"
#include "ui/application/ReaderCursor.h"
#include "ui/windows/scores/ElidedLabel.h"

class QGridLayout;

// The ten rows of a score list under their titles, on a ground that lets the picture behind it
// shine through a little and keeps its text legible. Where a screen reader listens, it is a stop of
// the tab key, in which the arrow keys lead from row to row.
class ScoreTable : public QWidget {
 public:
  // The labels of one row.
  struct Row {
    ElidedLabel* lblNumbers;
    ElidedLabel* lblNames;
    ElidedLabel* lblMoves;
    ElidedLabel* lblTimes;

    std::array<ElidedLabel*, 4> All() const { return {lblNumbers, lblNames, lblMoves, lblTimes}; }
  };

  explicit ScoreTable(QWidget* parent);

  const Row& At(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  void SetRed(int row, bool red);
  void ShowNoScoresYet(bool shown) { lblNoScoresYet_->setVisible(shown); }
  // Where the name of a row stands.
  QRect NamePlace(int row) const;
  // A row as one line, such as "1, Ann, 10 moves, 0:04:37.5".
  QString Line(int row) const;
  // The row that a widget is a label of, if it is one.
  std::optional<int> RowOf(const QWidget* label) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ElidedLabel* AddLabel(const char* name, int line, int column);
  void AddTitle(const char* name, int column, const QString& title);
  void SetColumnWidths();
  int FilledRows() const;
  QRect PlaceOf(int row) const;
  void LeadReaderTo(int row);

  QGridLayout* grid_;
  std::array<Row, ScoreRowCount> rows_{};
  ElidedLabel* lblNoScoresYet_;
  ReaderCursor reader_{*this};
  int readRow_ = 0;
};
