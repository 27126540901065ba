#include "shell/program_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tessel {
namespace {

TEST(ProgramFolder, HoldsTheRunningProgram) {
  const auto folder = ProgramFolder();
  ASSERT_TRUE(folder.has_value());
  EXPECT_TRUE(std::filesystem::path(*folder).is_absolute());
  EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(*folder) / "shell_tests"));
}

}  // namespace
}  // namespace tessel
