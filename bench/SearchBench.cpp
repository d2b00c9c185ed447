// The search core against the reference, in turn in one process: medians of five runs at each of
// the usual and the slowest refresh. Processor time, since other programs may be running.

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

#include "bench/ReferenceSearch.h"
#include "solver/TourSearch.h"

namespace {

constexpr std::int64_t Entries = 500'000'000;
constexpr std::array<int, 2> EntriesARedraw{1'001, 32'001};
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
  const std::clock_t begun = std::clock();
  const std::int64_t entries = search();
  const double seconds = static_cast<double>(std::clock() - begun) / CLOCKS_PER_SEC;
  return static_cast<double>(entries) / seconds / 1e6;
}

std::int64_t RunReference() {
  ReferenceSearch reference;
  return reference.Run(Entries);
}

std::int64_t RunCore(int entriesARedraw) {
  TourSearch search(CornerStart());
  while (search.Entries() < Entries) search.Run(entriesARedraw);
  return search.Entries();
}

double Median(std::array<double, Runs> values) {
  std::sort(values.begin(), values.end());
  return values[Runs / 2];
}

void Compare(int entriesARedraw) {
  std::array<double, Runs> reference{};
  std::array<double, Runs> core{};
  std::array<double, Runs> ratio{};
  for (std::size_t run = 0; run < Runs; ++run) {
    reference[run] = MillionsASecond(RunReference);
    core[run] = MillionsASecond([&] { return RunCore(entriesARedraw); });
    ratio[run] = core[run] / reference[run];
  }
  std::printf("%6d entries at a time: core %6.1f, reference %6.1f million a second, ratio %5.2f\n",
              entriesARedraw, Median(core), Median(reference), Median(ratio));
}

}  // namespace

int main() {
  for (const int entries : EntriesARedraw) Compare(entries);
}
