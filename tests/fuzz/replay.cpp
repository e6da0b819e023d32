// Puts files before a fuzzer's target, for compilers that have no libFuzzer: all in the folders that are
// given.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments) {
  int inputs = 0;
  for (int i = 1; i < count; ++i) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(arguments[i])) {
      if (!entry.is_regular_file()) continue;
      std::printf("%s\n", entry.path().string().c_str());
      std::fflush(stdout);
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++inputs;
    }
  }
  std::printf("%d inputs\n", inputs);
  return inputs > 0 ? 0 : 1;
}
