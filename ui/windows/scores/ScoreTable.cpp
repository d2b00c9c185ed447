#include "ui/windows/scores/ScoreTable.h"

#include <algorithm>

#include <QAccessible>
#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>

namespace {

enum Column { Numbers, Names, Moves, Times };

constexpr int Padding = 12;
constexpr int ColumnGap = 14;
constexpr int RowGap = 7;
constexpr double RowFontScale = 1.2;
constexpr double CornerRadius = 4;
constexpr double Opacity = 0.9;
constexpr double LineOpacity = 0.3;

constexpr Qt::Alignment AlignmentOf(int column) {
  return Qt::AlignVCenter | (column == Names ? Qt::AlignLeft : Qt::AlignRight);
}

// Somewhat larger than the text of a dialog.
QFont RowFont() {
  QFont font = QApplication::font();
  font.setFamily("Arial");
  font.setPointSizeF(QFontInfo(font).pointSizeF() * RowFontScale);
  return font;
}

QFont BoldFont() {
  QFont font = RowFont();
  font.setBold(true);
  return font;
}

}  // namespace

ScoreTable::ScoreTable(QWidget* parent) : QWidget(parent), grid_(new QGridLayout(this)) {
  setFont(RowFont());
  setFocusPolicy(QAccessible::isActive() ? Qt::TabFocus : Qt::NoFocus);
  grid_->setContentsMargins(Padding, Padding, Padding, Padding);
  grid_->setHorizontalSpacing(ColumnGap);
  grid_->setVerticalSpacing(RowGap);

  AddTitle("lblNamesTitle", Names, "Names");
  AddTitle("lblMovesTitle", Moves, "Moves");
  AddTitle("lblTimesTitle", Times, "Times");
  int line = 1;
  for (Row& row : rows_) {
    row = {AddLabel("lblNumbers", line, Numbers), AddLabel("lblNames", line, Names),
           AddLabel("lblMoves", line, Moves), AddLabel("lblTimes", line, Times)};
    ++line;
  }
  lblNoScoresYet_ = AddLabel("lblNoScoresYet", 1, Names);
  lblNoScoresYet_->setText("No Scores Yet");
  SetColumnWidths();
}

ElidedLabel* ScoreTable::AddLabel(const char* name, int line, int column) {
  auto* label = new ElidedLabel(this);
  label->setObjectName(name);
  label->setForegroundRole(QPalette::Text);
  label->setAlignment(AlignmentOf(column));
  grid_->addWidget(label, line, column);
  return label;
}

void ScoreTable::AddTitle(const char* name, int column, const QString& title) {
  ElidedLabel* label = AddLabel(name, 0, column);
  label->setText(title);
  label->setFont(BoldFont());
}

// The columns are wide enough for what games bring; only the names take what is left.
void ScoreTable::SetColumnWidths() {
  const QFontMetrics metrics(BoldFont());
  const auto width = [&metrics](const char* text) { return metrics.size(0, text).width() + 1; };
  grid_->setColumnMinimumWidth(Numbers, width(" 10."));
  grid_->setColumnMinimumWidth(Names, width("A Name of Some Length"));
  grid_->setColumnMinimumWidth(Moves, width("Moves"));
  grid_->setColumnMinimumWidth(Times, width("000:00:00.0"));
  grid_->setColumnStretch(Names, 1);
}

// A red row is bold as well, for those who cannot tell the colour.
void ScoreTable::SetRed(int row, bool red) {
  QPalette colors;
  if (red) colors.setColor(QPalette::Text, Qt::red);
  for (ElidedLabel* label : At(row).All()) {
    label->setPalette(colors);
    label->setFont(red ? BoldFont() : RowFont());
  }
}

QRect ScoreTable::NamePlace(int row) const {
  grid_->activate();
  return At(row).lblNames->geometry();
}

std::optional<int> ScoreTable::RowOf(const QWidget* label) const {
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    const auto labels = rows_[row].All();
    if (std::find(labels.begin(), labels.end(), label) != labels.end()) {
      return static_cast<int>(row);
    }
  }
  return std::nullopt;
}

QString ScoreTable::Line(int row) const {
  const Row& labels = At(row);
  QStringList parts{QString::number(row + 1), labels.lblNames->text(),
                    labels.lblMoves->text() + " moves", labels.lblTimes->text()};
  parts.removeAll(QString());
  return parts.join(", ");
}

int ScoreTable::FilledRows() const {
  return static_cast<int>(std::count_if(rows_.begin(), rows_.end(), [](const Row& row) {
    return !row.lblNumbers->text().isEmpty();
  }));
}

QRect ScoreTable::PlaceOf(int row) const {
  const int line = row + 1;
  return grid_->cellRect(line, Numbers).united(grid_->cellRect(line, Times));
}

void ScoreTable::LeadReaderTo(int row) {
  const int rows = FilledRows();
  readRow_ = std::clamp(row, 0, std::max(rows - 1, 0));
  reader_.LeadTo(PlaceOf(readRow_), rows == 0 ? lblNoScoresYet_->text() : Line(readRow_));
  update();
}

void ScoreTable::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  LeadReaderTo(readRow_);
}

void ScoreTable::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

void ScoreTable::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return LeadReaderTo(readRow_ - 1);
    case Qt::Key_Down:
      return LeadReaderTo(readRow_ + 1);
    case Qt::Key_Home:
      return LeadReaderTo(0);
    case Qt::Key_End:
      return LeadReaderTo(FilledRows() - 1);
    default:
      QWidget::keyPressEvent(event);
  }
}

void ScoreTable::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  QColor ground = palette().color(QPalette::Base);
  ground.setAlphaF(Opacity);
  painter.setBrush(ground);
  painter.drawRoundedRect(rect(), CornerRadius, CornerRadius);

  QColor line = palette().color(QPalette::Text);
  line.setAlphaF(LineOpacity);
  const int y = grid_->cellRect(0, 0).bottom() + RowGap / 2;
  painter.fillRect(Padding, y, width() - 2 * Padding, 1, line);
  if (!hasFocus()) return;
  painter.setPen(palette().color(QPalette::Highlight));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(PlaceOf(readRow_));
}
