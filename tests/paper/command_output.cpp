#include "tests/paper/command_output.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace tessel::paper {

CommandOutput OutputOf(const std::string& command) {
  CommandOutput output;
  FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return {"no shell", -1};
  std::array<char, 4096> buffer{};
  while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
    output.text.append(buffer.data(), count);
  }
  output.status = pclose(pipe);
  return output;
}

TemporaryFile::TemporaryFile(const std::string& name, std::string_view contents)
    : path_(testing::TempDir() + "tessel-" + std::to_string(getpid()) + "-" + name) {
  std::ofstream(path_, std::ios::binary) << contents;
}

TemporaryFile::~TemporaryFile() {
  std::filesystem::remove(path_);
}

}  // namespace tessel::paper
