// Compares the stories of whole games with the accepted ones, or accepts them (see `accept`).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

#include "tests/golden/games.h"
#include "tests/source_folder.h"

namespace tessel {
namespace {

std::filesystem::path FileOf(const Game& game) {
  return std::filesystem::path(SourceFolder()) / "tests" / "golden" /
         (std::string(game.name) + ".txt");
}

std::vector<std::string> LinesOf(std::istream&& text) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

// The first line that differs, with the lines before it.
std::string FirstDifference(const std::string& accepted, const std::string& told) {
  const auto before = LinesOf(std::istringstream(accepted));
  const auto after = LinesOf(std::istringstream(told));
  const auto [was, is] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  std::string text = "line " + std::to_string(was - before.begin() + 1) + '\n';
  const auto context = was - std::min<std::ptrdiff_t>(6, was - before.begin());
  for (auto line = context; line != was; ++line) text += "  " + *line + '\n';
  text += "- " + (was == before.end() ? "(the end)" : *was) + '\n';
  return text + "+ " + (is == after.end() ? "(the end)" : *is) + '\n';
}

std::string Read(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text(std::filesystem::file_size(path), '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  return text;
}

class GoldenGame : public testing::TestWithParam<Game> {};

TEST_P(GoldenGame, IsToldAsAccepted) {
  ASSERT_TRUE(std::filesystem::exists(FileOf(GetParam()))) << "run tests/golden/accept";
  const std::string accepted = Read(FileOf(GetParam()));
  const std::string told = GetParam().play();
  EXPECT_TRUE(told == accepted) << FirstDifference(accepted, told)
                                << "If the change is wanted, run tests/golden/accept.";
  EXPECT_NE(told.find("applause.wav"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Games, GoldenGame, testing::ValuesIn(kGames),
                         [](const auto& game) { return std::string(game.param.name); });

void Accept() {
  for (const Game& game : kGames) {
    std::ofstream(FileOf(game), std::ios::binary) << game.play();
    std::cout << "accepted " << FileOf(game).string() << '\n';
  }
}

}  // namespace
}  // namespace tessel

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--accept") == 0) {
    tessel::Accept();
    return 0;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
