// Runs a fuzz target over every file of the folders named on the command line, and over each file
// cut short at a few places, so that seeds and past findings are checked in every test run.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments) {
  int files = 0;
  for (int i = 1; i < count; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
      std::ifstream stream(entry.path(), std::ios::binary);
      const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
      const auto* data = reinterpret_cast<const std::uint8_t*>(bytes.data());
      for (std::size_t eighths = 0; eighths <= 8; ++eighths) {
        LLVMFuzzerTestOneInput(data, bytes.size() * eighths / 8);
      }
      ++files;
    }
  }
  std::printf("%d files replayed\n", files);
  return files == 0 ? 1 : 0;
}
