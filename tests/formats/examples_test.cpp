#include <gtest/gtest.h>

#include "formats/format.h"
#include "formats/sdm.h"
#include "formats/sds.h"
#include "formats/solo.h"
#include "tests/formats/example.h"

namespace tessel::formats {
namespace {

class Examples : public testing::TestWithParam<const Format*> {
 protected:
  const Format& format = *GetParam();
  // Records of .sds have no end of line; readers of lines get none.
  std::string Record() const {
    std::string record = ExampleIn(format.name);
    if (format.name != kSdsName) record.pop_back();
    return record;
  }
};

TEST_P(Examples, IsWrittenByteForByte) {
  if (format.name == "sdm") GTEST_SKIP() << "cannot hold it";
  EXPECT_EQ(std::string(format.header) + format.write(Example()).value(), ExampleIn(format.name));
}

TEST_P(Examples, IsReadBack) {
  if (!format.IsRead() || format.name == "sdm") GTEST_SKIP() << "is not read";
  const Reading reading = format.read(Record());
  ASSERT_TRUE(reading) << reading.error().expected << ", " << reading.error().found;
  Puzzle expected = Example().puzzle;
  if (!format.carries.Has(Detail::kSolution)) expected.solution.reset();
  EXPECT_EQ(reading->puzzle, expected);
  EXPECT_EQ(reading->title, format.carries.Has(Detail::kTitle) ? "Tessel 1" : "");
  EXPECT_EQ(reading->author, format.carries.Has(Detail::kAuthor) ? "Tessel Sudoku" : "");
}

TEST_P(Examples, LooksLikeItsFormatFirst) {
  if (!format.IsRead() || format.name == "sdm") GTEST_SKIP() << "is not read";
  for (const Format& other : AllFormats()) {
    if (!other.IsRead() || !other.looksLike(Record())) continue;
    EXPECT_EQ(other.name, format.name);
    return;
  }
  FAIL() << "looks like none";
}

std::vector<const Format*> Pointers() {
  std::vector<const Format*> pointers;
  for (const Format& format : AllFormats()) pointers.push_back(&format);
  return pointers;
}

std::string NameOf(const testing::TestParamInfo<const Format*>& info) {
  std::string name(info.param->name);
  std::erase(name, '-');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Formats, Examples, testing::ValuesIn(Pointers()), NameOf);

TEST(Sdm, HoldsBoxesHoweverTheyAreNumbered) {
  CageNumbers boxes = Layout::Regular().Cages();
  for (std::uint8_t& box : boxes) box = static_cast<std::uint8_t>(10 - box);
  const Grid givens = GridFrom(kExampleGivens);
  const DescribedPuzzle puzzle{.puzzle = {Layout::FromCages(boxes).value(), givens, {}}};
  std::string line(kExampleGivens);
  for (char& character : line) character = character == '.' ? '0' : character;
  EXPECT_EQ(WriteSdm(puzzle).value(), line + "\n");
  EXPECT_EQ(ReadSdm(line).value().puzzle, (Puzzle{Layout::Regular(), givens, {}}));
}

TEST(Sdm, RefusesIrregularCages) {
  EXPECT_FALSE(WriteSdm(Example()));
}

TEST(TextLine, DigitsAreTheNumbersOfTheirCages) {
  std::string cages(kExampleCages);
  for (char& digit : cages) digit = static_cast<char>('1' + '9' - digit);
  const Reading reading = FormatNamed("text")->read(std::string(kExampleGivens) + " " + cages);
  EXPECT_EQ(reading.value().puzzle.layout.CageOf(0), 9);
}

// Three rows are cages, and boxes stand below: 24 edges without a wall, and two more.
TEST(Solo, RefusesTwentySixEdgesWithoutAWall) {
  CageNumbers cages = Layout::Regular().Cages();
  for (int cell = 0; cell < 3 * kSide; ++cell) {
    cages[cell] = static_cast<std::uint8_t>(1 + RowOf(cell));
  }
  const Writing writing = WriteSolo({.puzzle = {Layout::FromCages(cages).value(), {}, {}}});
  ASSERT_FALSE(writing);
  EXPECT_EQ(writing.error(),
            "26 edges without a wall follow each other, which programs read in two ways");
}

TEST(Formats, AreFoundByName) {
  EXPECT_EQ(FormatNamed("f-puzzles")->name, "f-puzzles");
  EXPECT_EQ(FormatNamed("nonsense"), nullptr);
}

}  // namespace
}  // namespace tessel::formats
