#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>

// What a random player decides by: the same seed, the same decisions.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : engine_(seed) {}

  // 0..count-1; count is at least 1.
  int Below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
  bool OneIn(int count) { return Below(count) == 0; }

  // One of the elements of a list that is not empty.
  template <typename List>
  const auto& Pick(const List& list) {
    return list[static_cast<decltype(std::size(list))>(Below(static_cast<int>(std::size(list))))];
  }

  // One of the rows, each as likely as its member weight says.
  template <typename Rows>
  const auto& PickWeighted(const Rows& rows) {
    int total = 0;
    for (const auto& row : rows) total += row.weight;
    int left = Below(total);
    auto row = std::begin(rows);
    while (left >= row->weight) left -= (row++)->weight;
    return *row;
  }

 private:
  std::mt19937_64 engine_;
};
