// Runs a fuzz target on kept inputs: replay FILE_OR_FOLDER...
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "fuzz/input.h"

namespace {

namespace fs = std::filesystem;

void Run(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
  std::fprintf(stderr, "%s\n", path.c_str());
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
  int inputs = 0;
  for (int i = 1; i < argc; ++i) {
    const fs::path path = argv[i];
    if (!fs::is_directory(path)) {
      Run(path);
      ++inputs;
      continue;
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(path)) {
      Run(entry.path());
      ++inputs;
    }
  }
  std::printf("%d inputs\n", inputs);
  return inputs > 0 ? 0 : 1;
}
