#include "grade/step_kind.h"

#include <gtest/gtest.h>

#include <set>

namespace tessel::grade {
namespace {

TEST(StepKind, IsFoundByKeyAndByName) {
  for (const StepKindFacts& facts : kStepKinds) {
    EXPECT_EQ(StepKindNamed(facts.key), facts.kind);
    EXPECT_EQ(StepKindNamed(facts.name), facts.kind);
  }
}

TEST(StepKind, IsFoundHoweverItIsSpelt) {
  EXPECT_EQ(StepKindNamed("X-WING"), StepKind::kXWing);
  EXPECT_EQ(StepKindNamed("x wing"), StepKind::kXWing);
  EXPECT_EQ(StepKindNamed("hidden-pair"), StepKind::kHiddenPair);
  EXPECT_EQ(StepKindNamed("Leftovers of two lines"), StepKind::kTwoLineLeftovers);
}

TEST(StepKind, IsNotFoundByOtherWords) {
  for (const char* name : {"", "single", "naked", "x_wing_", "naked__pair", "level 3"}) {
    EXPECT_FALSE(StepKindNamed(name)) << name;
  }
}

TEST(StepKind, HasKeysAndNamesOfItsOwn) {
  std::set<std::string_view> keys;
  std::set<std::string_view> names;
  for (const StepKindFacts& facts : kStepKinds) {
    keys.insert(facts.key);
    names.insert(facts.name);
  }
  EXPECT_EQ(keys.size(), kStepKindCount);
  EXPECT_EQ(names.size(), kStepKindCount);
}

TEST(StepKind, HasTheLevelAndTheWeightThatGuidesGiveIt) {
  const auto facts = [](StepKind kind) {
    return std::pair(FactsOf(kind).level, FactsOf(kind).weight);
  };
  EXPECT_EQ(facts(StepKind::kNakedSingle), std::pair(Level::kEasy, 4));
  EXPECT_EQ(facts(StepKind::kHiddenSingle), std::pair(Level::kEasy, 14));
  EXPECT_EQ(facts(StepKind::kClaiming), std::pair(Level::kModerate, 50));
  EXPECT_EQ(facts(StepKind::kHiddenTriple), std::pair(Level::kTricky, 100));
  EXPECT_EQ(facts(StepKind::kTwoLineLeftovers), std::pair(Level::kHard, 110));
  EXPECT_EQ(facts(StepKind::kXWing), std::pair(Level::kVeryHard, 140));
  EXPECT_EQ(facts(StepKind::kFourLineLeftovers), std::pair(Level::kVeryHard, 150));
}

TEST(Level, HasItsName) {
  EXPECT_EQ(NameOf(Level::kEasy), "Easy");
  EXPECT_EQ(NameOf(Level::kTricky), "Tricky");
  EXPECT_EQ(NameOf(Level::kBeyond), "Beyond");
}

}  // namespace
}  // namespace tessel::grade
