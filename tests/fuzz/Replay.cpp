// Feeds the seeds to a fuzz target once, without a fuzzer: replay FOLDER.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argumentCount, char* arguments[]) {
  if (argumentCount != 2) return 2;
  int seeds = 0;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
    LLVMFuzzerTestOneInput(data, bytes.size());
    ++seeds;
  }
  std::printf("%d seeds\n", seeds);
  return seeds > 0 ? 0 : 1;
}
