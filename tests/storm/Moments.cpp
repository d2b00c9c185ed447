#include "tests/storm/Moments.h"

const std::vector<MomentRow>& Moments() {
  static const std::vector<MomentRow> rows = [] {
    std::vector<MomentRow> all = GameMoments();
    all.insert(all.end(), DialogMoments().begin(), DialogMoments().end());
    return all;
  }();
  return rows;
}
