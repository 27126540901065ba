// A folder for what tessel make writes.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/fakes/temporary_folder.h"
#include "tests/tools/command_line.h"

namespace tessel {

class MadeFile : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return (folder.Path() / name).string(); }

  std::string Contents(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
  }
  std::size_t Files() const {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder.Path()), {}));
  }

  // A line of shell, started in the folder.
  Outcome Shell(const std::string& line) const {
    return RunShell("cd '" + folder.Path().string() + "' && {\n" + line + "\n}");
  }
  Outcome Make(const std::string& options) const { return Shell("\"$tessel\" make " + options); }

  TemporaryFolder folder;
};

}  // namespace tessel
