#include "ui/windows/history/Paper.h"

#include <cstdint>
#include <langinfo.h>

#include <QRegularExpression>
#include <QSizeF>

namespace {

std::optional<QPageSize> IfValid(const QPageSize& paper) {
  return paper.isValid() ? std::optional(paper) : std::nullopt;
}

std::optional<QPageSize> PaperOfSize(const QRegularExpressionMatch& sides, QPageSize::Unit unit) {
  const QSizeF size(sides.captured("width").toDouble(), sides.captured("height").toDouble());
  return IfValid(QPageSize(size, unit));
}

// "A4", "A4.Borderless", "w288h432" in points, or "iso_a4_210x297mm".
std::optional<QPageSize> PaperNamed(const QString& name) {
  const QString key = name.section('.', 0, 0);
  for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
    const auto paper = static_cast<QPageSize::PageSizeId>(id);
    if (paper != QPageSize::Custom && QPageSize::key(paper) == key) return QPageSize(paper);
  }
  static const QRegularExpression points("^w(?<width>\\d+)h(?<height>\\d+)");
  if (const auto sides = points.match(name); sides.hasMatch()) {
    return PaperOfSize(sides, QPageSize::Point);
  }
  static const QRegularExpression standard("_(?<width>[\\d.]+)x(?<height>[\\d.]+)(?<unit>mm|in)$");
  const auto sides = standard.match(name);
  if (!sides.hasMatch()) return std::nullopt;
  const bool inches = sides.captured("unit") == "in";
  return PaperOfSize(sides, inches ? QPageSize::Inch : QPageSize::Millimeter);
}

// The system's library gives a number in the place of a text.
int NumberOfLocale(nl_item item) {
  return static_cast<int>(reinterpret_cast<std::intptr_t>(nl_langinfo(item)));
}

}  // namespace

std::optional<QPageSize> DefaultPaperIn(const QByteArray& queueOptions) {
  static const QRegularExpression marked("^PageSize/.*[: ]\\*(\\S+)",
                                         QRegularExpression::MultilineOption);
  const auto choice = marked.match(QString::fromUtf8(queueOptions));
  return choice.hasMatch() ? PaperNamed(choice.captured(1)) : std::nullopt;
}

QPageSize PaperOfLocale() {
  const QSizeF size(NumberOfLocale(_NL_PAPER_WIDTH), NumberOfLocale(_NL_PAPER_HEIGHT));
  const QPageSize paper(size, QPageSize::Millimeter);
  return paper.isValid() ? paper : QPageSize(QPageSize::A4);
}
