#include <gmock/gmock.h>

#include "tests/formats/example.h"
#include "tests/tools/command_line.h"

namespace tessel {
namespace {

using formats::ExampleIn;
using formats::kExampleCages;
using formats::kExampleGivens;
using formats::kExampleSolution;
using testing::HasSubstr;

std::string Line(const std::string& givens) {
  return givens + " " + std::string(kExampleCages) + "\n";
}

Outcome Check(const std::string& puzzles, std::vector<std::string> options = {}) {
  options.insert(options.begin(), "check");
  return RunTessel(options, puzzles);
}

TEST(Check, TellsOneSolution) {
  const Outcome outcome = Check(ExampleIn("sds") + ExampleIn("sds"), {"--solve"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.out, "standard input:record 1: one: " + std::string(kExampleSolution) +
                             "\nstandard input:record 2: one: " + std::string(kExampleSolution) +
                             "\n");
}

TEST(Check, TellsASolutionThatIsAnother) {
  std::string record = ExampleIn("sds");
  std::swap(record[81], record[83]);  // r1c1 and r1c3, no givens
  const Outcome outcome = Check(record);
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.out, "standard input:record 1: one, which is not the one that stands there\n");
}

// The two solutions agree in all cells but those that are named.
TEST(Check, TellsWhereTwoSolutionsDiffer) {
  std::string givens(kExampleGivens);
  givens[1] = givens[79] = '.';
  const Outcome outcome = Check(Line(givens));
  EXPECT_EQ(outcome.code, 1);
  ASSERT_THAT(outcome.out, HasSubstr("standard input:1: several: r"));
  const std::size_t first = outcome.out.find("\n  ") + 3;
  const std::string a = outcome.out.substr(first, 81);
  const std::string b = outcome.out.substr(first + 84, 81);
  EXPECT_NE(a, b);
  for (int cell = 0; cell < 81; ++cell) {
    const std::string named = "r" + std::to_string(cell / 9 + 1) + "c" +
                              std::to_string(cell % 9 + 1) + " is " + a[cell] + " or " + b[cell];
    EXPECT_EQ(outcome.out.find(named) != std::string::npos, a[cell] != b[cell]) << named;
  }
}

TEST(Check, TellsTheLeastReasonForNone) {
  std::string twice(kExampleGivens);
  twice[0] = '8';
  EXPECT_EQ(Check(Line(twice)).out,
            "standard input:1: none: 8 is given twice in row 1, r1c1 and r1c2\n");
  const std::string boxes =
      " 111222333111222333111222333444555666444555666444555666777888999777888999777888999";
  EXPECT_EQ(Check("12345678." + std::string(17, '.') + "9" + std::string(54, '.') + boxes).out,
            "standard input:1: none: no digit is left for r1c9\n");
  EXPECT_EQ(Check("12345678." + std::string(8, '.') + "." + std::string(6, '.') + "9.." +
                  std::string(54, '.') + boxes)
                .code,
            1);
}

TEST(Check, TellsGivensThatCouldGo) {
  const Outcome minimal = Check(ExampleIn("text"), {"--minimal"});
  std::string more(kExampleGivens);
  more[0] = '4';
  const Outcome outcome = Check(Line(more), {"--minimal"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.out, HasSubstr("one, not minimal (each alone could go: r1c1"));
  EXPECT_EQ(minimal.code, minimal.out.find("one, minimal") == std::string::npos ? 1 : 0);
}

TEST(Check, TellsWhetherLayoutsHaveAFilling) {
  const Outcome outcome =
      Check(std::string(kExampleCages) + "\n# comment\n" + std::string(kExampleCages) + "\n",
            {"--layout"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.out.substr(0, 4), "yes ");
  EXPECT_EQ(outcome.out.size(), 2 * 86U);
}

TEST(Check, LayoutGoesAlone) {
  EXPECT_EQ(Check("", {"--layout", "--solve"}).code, 2);
}

}  // namespace
}  // namespace tessel
