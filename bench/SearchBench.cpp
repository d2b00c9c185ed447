// The search core against the reference, in turn in one process: medians of five runs.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

#include "bench/ReferenceSearch.h"
#include "solver/TourSearch.h"

namespace {

constexpr std::int64_t Entries = 500'000'000;
constexpr int EntriesARedraw = 32'001;
constexpr int Runs = 5;

GameState CornerStart() {
  GameState game;
  game.Cell(0, 0) = GameState::Visited;
  game.MoveList[0] = {0, 0};
  game.MoveCount = 1;
  return game;
}

template <typename Search>
double MillionsASecond(const Search& search) {
  const auto begun = std::chrono::steady_clock::now();
  const std::int64_t entries = search();
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begun;
  return static_cast<double>(entries) / elapsed.count() / 1e6;
}

std::int64_t RunReference() {
  ReferenceSearch reference;
  return reference.Run(Entries);
}

std::int64_t RunCore() {
  TourSearch search(CornerStart());
  while (search.Entries() < Entries) search.Run(EntriesARedraw);
  return search.Entries();
}

double Median(std::array<double, Runs> values) {
  std::sort(values.begin(), values.end());
  return values[Runs / 2];
}

}  // namespace

int main() {
  std::array<double, Runs> reference{};
  std::array<double, Runs> core{};
  std::array<double, Runs> ratio{};
  for (std::size_t run = 0; run < Runs; ++run) {
    reference[run] = MillionsASecond(RunReference);
    core[run] = MillionsASecond(RunCore);
    ratio[run] = core[run] / reference[run];
  }
  std::printf("reference %6.1f million entries a second\n", Median(reference));
  std::printf("core      %6.1f million entries a second, %d at a time\n", Median(core),
              EntriesARedraw);
  std::printf("ratio     %6.2f\n", Median(ratio));
}
