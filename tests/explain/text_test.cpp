#include "explain/text.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "explain/text_board.h"
#include "tests/explain/steps_by_kind.h"
#include "tests/source_folder.h"

namespace tessel::explain {
namespace {

using testing::HasSubstr;

// A puzzle with steps of several kinds. TESSEL_ACCEPT=1 in the environment takes a change over.
TEST(Text, IsAsItWas) {
  const std::string path = SourceFolder() + "/tests/explain/way.txt";
  const std::string text = TextOf(Explain(grade::PuzzleMaker().MakeAnyKind(6)), "A puzzle");
  if (std::getenv("TESSEL_ACCEPT") != nullptr) std::ofstream(path) << text;
  std::ifstream file(path);
  EXPECT_TRUE(text == std::string(std::istreambuf_iterator<char>(file), {}))
      << "differs from " << path;
}

TEST(Text, HasLinesThatFitATerminal) {
  grade::PuzzleMaker maker;
  for (std::uint64_t seed = 0; seed < 10; ++seed) {
    std::istringstream text(TextOf(Explain(maker.MakeAnyKind(seed)), "A puzzle"));
    for (std::string line; std::getline(text, line);) EXPECT_LE(line.size(), 81U) << line;
  }
}

TEST(Text, SaysWhereTheLadderEnds) {
  grade::PuzzleMaker maker;
  for (std::uint64_t seed = 0; seed < 200; ++seed) {
    const Explanation explanation = Explain(maker.MakeAnyKind(seed));
    if (explanation.end.Solved()) continue;
    const std::string text = TextOf(explanation, "A puzzle");
    EXPECT_THAT(text, HasSubstr("Here the ladder of steps ends"));
    EXPECT_THAT(text, HasSubstr(CandidateTable(explanation.end)));
    return;
  }
  FAIL() << "every puzzle was solved";
}

TEST(TextBoard, ShowsWallsDigitsAndCaptions) {
  Grid digits{};
  digits[0] = 5;
  digits[80] = 7;
  const std::string board = Drawn(Layout::Regular(), DigitTexts(digits));
  EXPECT_THAT(board, testing::StartsWith("    1   2   3   4   5   6   7   8   9\n"
                                         "  +---+---+---+---+---+---+---+---+---+\n"
                                         "A | 5         |           |           |\n"
                                         "  +   +   +   +   +   +   +   +   +   +\n"));
  EXPECT_THAT(board, testing::EndsWith("J |           |           |         7 |\n"
                                       "  +---+---+---+---+---+---+---+---+---+\n"));
}

}  // namespace
}  // namespace tessel::explain
