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

constexpr std::string_view kBoxes =
    "111222333111222333111222333444555666444555666444555666777888999777888999777888999";
// Connected cages that no digits fill.
constexpr std::string_view kUnfillable =
    "577773333547778833547788833544488883555449222656449922656999922666191912661111112";

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

// A download that failed must not look like a puzzle that is right.
TEST(Check, AnInputWithoutPuzzlesFails) {
  for (const char* const input : {"", "\n", "# nothing but a comment\n"}) {
    for (const std::vector<std::string>& options : {std::vector<std::string>{}, {"--layout"}}) {
      const Outcome outcome = Check(input, options);
      EXPECT_EQ(outcome.code, 1);
      EXPECT_EQ(outcome.err, "tessel check: there is nothing to check\n");
    }
  }
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
  EXPECT_EQ(Check("12345678." + std::string(17, '.') + "9" + std::string(54, '.') + " " +
                  std::string(kBoxes))
                .out,
            "standard input:1: none: no digit is left for r1c9\n");
}

// The digit 5 has no cell left in box 1, though nothing clashes and every cell has a digit.
TEST(Check, TellsThatSearchFoundNone) {
  std::string givens(81, '.');
  for (const int cell : {3, 15, 28, 56}) givens[cell] = '5';
  for (const int cell : {0, 9, 18}) givens[cell] = static_cast<char>('1' + cell / 9);
  const Outcome outcome = Check(givens + " " + std::string(kBoxes) + "\n");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.out, "standard input:1: none, found by search\n");
}

// One given of that layout: the search alone goes on for ever.
TEST(Check, EndsWhereTheSearchDoesNot) {
  std::string givens(81, '.');
  givens[54] = '7';
  const std::string puzzle = givens + " " + std::string(kUnfillable) + "\n";
  EXPECT_EQ(Check(puzzle).out, "standard input:1: none, found by search\n");
  EXPECT_THAT(RunTessel({"grade"}, puzzle).err, HasSubstr("it has no solution"));
  EXPECT_THAT(RunTessel({"explain", "-"}, puzzle).err, HasSubstr("it has no solution"));
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

TEST(Check, TellsALayoutWithoutAFilling) {
  const std::string layouts = std::string(kUnfillable) + "\n" + std::string(kExampleCages) + "\n";
  const Outcome outcome = Check(layouts, {"--layout"});
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.out.substr(0, 7), "no\nyes ");
}

TEST(Check, LayoutGoesAlone) {
  EXPECT_EQ(Check("", {"--layout", "--solve"}).code, 2);
}

}  // namespace
}  // namespace tessel
