#include "ui/board/BoardLayout.h"

#include <algorithm>
#include <cmath>

BoardLayout LayOutBoard(double innerHeight, double cornerDistance) {
  const double side = (innerHeight - 2 * cornerDistance) / BoardSide;
  return {cornerDistance, std::max(side, TwipsPerPixel)};
}

double InnerCellSide(const BoardLayout& layout, bool useBorders) {
  return useBorders ? std::max(layout.squareSide - 2 * BorderTwips, 0.0) : layout.squareSide;
}

std::array<int, BoardSide + 1> CellEdges(const BoardLayout& layout, double devicePixelRatio) {
  std::array<int, BoardSide + 1> edges{};
  for (int i = 0; i <= BoardSide; ++i) {
    const double twips = layout.cornerDistance + i * layout.squareSide;
    edges[static_cast<std::size_t>(i)] =
        static_cast<int>(std::lround(PixelsFromTwips(twips) * devicePixelRatio));
  }
  return edges;
}

std::array<PixelSpan, BoardSide> CellSpans(const BoardLayout& layout, double devicePixelRatio) {
  const auto edges = CellEdges(layout, devicePixelRatio);
  std::array<PixelSpan, BoardSide> spans{};
  for (std::size_t i = 0; i < spans.size(); ++i) {
    spans[i] = {static_cast<int>(std::floor(edges[i] / devicePixelRatio)),
                static_cast<int>(std::ceil(edges[i + 1] / devicePixelRatio))};
  }
  return spans;
}

int SquareAt(const BoardLayout& layout, double devicePixelRatio, double position) {
  const auto edges = CellEdges(layout, devicePixelRatio);
  const double devicePosition = position * devicePixelRatio;
  if (devicePosition < edges.front() || devicePosition >= edges.back()) return -1;
  const auto* const after = std::upper_bound(edges.begin(), edges.end(), devicePosition);
  return static_cast<int>(after - edges.begin()) - 1;
}
