#include "ui/windows/history/MoveListPage.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include "storage/MoveListExport.h"

namespace {

constexpr int TitlePoints = 12;
constexpr int ListPoints = 9;
constexpr int FooterPoints = 7;
constexpr double PointsOfInch = 72.0;
constexpr double MarginPoints = 36.0;
// A tab stop is eight average characters wide, each 4/9 of the font's size.
constexpr double TabWidthOfSize = 8 * 4 / 9.0;

struct Run {
  int points;
  QString text;
};
using Line = std::vector<Run>;

QString RowOfMoves(const QStringList& lines, qsizetype row) {
  const QString left = "\t" + lines[row];
  const qsizetype second = row + RowsOfPage;
  return second < lines.size() ? left + "\t\t\t" + lines[second] : left;
}

std::vector<Line> PageLines(const QStringList& lines, const QString& version) {
  std::vector<Line> page;
  for (const char* title : {"\t ", "\t ", "\t\tGallopade", "\t\t - Move List - "}) {
    page.push_back({{TitlePoints, title}});
  }
  const QString rule = "\t" + QString(35, '_');
  for (const QString& text : {rule, QString("\t ")}) page.push_back({{ListPoints, text}});
  for (qsizetype row = 0; row < std::min(lines.size(), RowsOfPage); ++row) {
    page.push_back({{ListPoints, RowOfMoves(lines, row)}});
  }
  for (const QString& text : {rule, QString("\t ")}) page.push_back({{ListPoints, text}});
  page.push_back({{ListPoints, "\t"}, {FooterPoints, GeneratedBy(version)}});
  return page;
}

// Writes lines from the top of the page down. Columns are drawn at their places: Qt's own tab stops
// are wrong at a printer's resolution.
class PagePainter {
 public:
  explicit PagePainter(QPdfWriter& document)
      : document_(document), painter_(&document), scale_(document.resolution() / PointsOfInch) {}

  void Write(const Line& line) {
    y_ += MetricsOf(line.front()).lineSpacing();
    x_ = 0;
    for (const Run& run : line) Write(run);
  }

 private:
  static QFont FontOf(const Run& run) { return QFont("Arial", run.points); }

  QFontMetricsF MetricsOf(const Run& run) const { return {FontOf(run), &document_}; }

  void Write(const Run& run) {
    painter_.setFont(FontOf(run));
    const QFontMetricsF metrics = MetricsOf(run);
    const QStringList pieces = run.text.split('\t');
    for (qsizetype i = 0; i < pieces.size(); ++i) {
      if (i > 0) x_ = NextTabStop(run.points);
      painter_.drawText(QPointF(x_, y_ - metrics.descent()), pieces[i]);
      x_ += metrics.horizontalAdvance(pieces[i]);
    }
  }

  double NextTabStop(int points) const {
    const double width = TabWidthOfSize * points * scale_;
    return (std::floor(x_ / width) + 1) * width;
  }

  QPdfWriter& document_;
  QPainter painter_;
  double scale_;  // device units of a point
  double x_ = 0;
  double y_ = 0;
};

}  // namespace

QByteArray MoveListPage(const QStringList& lines, const QString& version, const QPageSize& paper) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  {
    QPdfWriter document(&bytes);
    document.setTitle("Move List");
    document.setCreator("Gallopade Nova");
    document.setPageSize(paper);
    document.setPageMargins({MarginPoints, MarginPoints, MarginPoints, MarginPoints},
                            QPageLayout::Point);
    PagePainter painter(document);
    for (const Line& line : PageLines(lines, version)) painter.Write(line);
  }
  return bytes.data();
}
