#include "tests/oracle/hints/random_layout.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/oracle/hints/literal_hints.h"
#include "tests/oracle/hints/random_scene.h"

namespace tessel::literal {
namespace {

TEST(RandomLayout, CagesAreWholeAndDifferFromTheRegularOnes) {
  SeededRandom random(5);
  std::set<CageMap> seen;
  for (int i = 0; i < 20; ++i) {
    const CageMap cages = RandomLayout(random);
    EXPECT_TRUE(IsLayout(cages));
    seen.insert(cages);
  }
  EXPECT_EQ(seen.size(), 20u);
  EXPECT_FALSE(seen.contains(RegularLayout()));
  EXPECT_TRUE(IsLayout(RegularLayout()));
}

TEST(RandomLayout, ABrokenCageIsNoLayout) {
  CageMap cages = RegularLayout();
  std::swap(cages[0], cages[80]);
  EXPECT_FALSE(IsLayout(cages));
}

TEST(RandomLayout, SolutionsHoldEveryDigitOnceInEveryHouse) {
  SeededRandom random(6);
  for (int i = 0; i < 20; ++i) {
    const SolvedLayout solved = IrregularSolved(random);
    std::array<int, 27> digits{};
    for (int cell = 0; cell < 81; ++cell) {
      for (const int house : {cell / 9, 9 + cell % 9, 17 + solved.cages[cell]}) {
        digits[house] |= Bit(solved.solution[cell]);
      }
    }
    for (const int mask : digits) EXPECT_EQ(mask, 511);
  }
}

TEST(RandomScene, ConsistentOnesKeepTheSolutionAndHoldNothingStale) {
  SeededRandom random(7);
  const SolvedLayout solved = IrregularSolved(random);
  for (int i = 0; i < 200; ++i) {
    const Scene scene = ConsistentScene(solved, random);
    for (int cell = 0; cell < 81; ++cell) {
      if (scene.board[cell] == 0) {
        EXPECT_TRUE(scene.marks[cell] & Bit(scene.solution[cell]));
        continue;
      }
      EXPECT_EQ(scene.marks[cell], 0);
      for (int other = 0; other < 81; ++other) {
        if (cell / 9 == other / 9 || cell % 9 == other % 9 ||
            scene.cages[cell] == scene.cages[other]) {
          EXPECT_FALSE(scene.marks[other] & Bit(scene.board[cell]));
        }
      }
    }
  }
}

}  // namespace
}  // namespace tessel::literal
