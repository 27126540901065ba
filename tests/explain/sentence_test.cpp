#include "explain/sentence.h"

#include <gmock/gmock.h>

#include "core/names.h"
#include "explain/listing.h"
#include "hints/ladder.h"
#include "tests/explain/steps_by_kind.h"

namespace tessel::explain {
namespace {

using grade::Step;
using grade::StepKind;
using testing::Contains;
using testing::StartsWith;

std::vector<std::string> HintSentences(const Layout& layout, const grade::CandidateGrid& position) {
  std::vector<std::string> sentences;
  for (const Technique* technique : kLadder) {
    for (const Hint& hint : AllHints(*technique, {layout, position.digits, position.candidates})) {
      sentences.push_back(technique->sentence(hint));
    }
  }
  return sentences;
}

bool IsCountedAsAnother(StepKind kind) {
  return kind == StepKind::kHiddenPair || kind == StepKind::kHiddenTriple ||
         kind == StepKind::kNakedPair || kind == StepKind::kNakedTriple ||
         kind == StepKind::kNakedQuad;
}

// Sets aside, which can be found as their counterparts, the hint button would say the same.
TEST(Sentence, IsTheHintsOwn) {
  grade::PuzzleMaker maker;
  int compared = 0;
  for (std::uint64_t seed = 0; seed < 8; ++seed) {
    const Explanation explanation = Explain(maker.MakeAnyKind(seed));
    for (const auto& [step, before] : explanation.steps) {
      const std::string sentence = SentenceOf(explanation.layout, step);
      if (IsCountedAsAnother(step.kind) || sentence.starts_with("The Law")) continue;
      EXPECT_THAT(HintSentences(explanation.layout, before), Contains(sentence));
      ++compared;
    }
  }
  EXPECT_GT(compared, 300);
}

Layout Boxes() {
  return Layout::Regular();
}

TEST(Sentence, OfEachKind) {
  const Step pair{
      StepKind::kNakedPair, {{HouseKind::kRow, 2}},     CellSet::Of(18) | CellSet::Of(19), 3, false,
      std::nullopt,         {{20, 1}, {21, 1}, {22, 3}}};
  EXPECT_EQ(HeadingOf(pair), "Naked pair");
  EXPECT_EQ(SentenceOf(Boxes(), pair),
            "A naked pair is present in row C and leads to elimination in other cells of that row");
  EXPECT_EQ(ReasonOf(Boxes(), pair), "In row C, the cells C1 and C2 take up 1 and 2");
  EXPECT_EQ(OutcomeOf(pair), "1 goes from C3 and C4; 1 and 2 go from C5");

  const Step single{StepKind::kHiddenSingle,
                    {{HouseKind::kRow, 1}, {HouseKind::kCage, 1}},
                    CellSet::Of(12),
                    BitOf(7),
                    false,
                    grade::Placement{12, 7}};
  EXPECT_EQ(SentenceOf(Boxes(), single), "Hidden single in row at cell B4");
  EXPECT_EQ(ReasonOf(Boxes(), single),
            "7 has no other place in row B and the cage that starts at cell A4");
  EXPECT_EQ(OutcomeOf(single), "B4 is 7");
}

TEST(Sentence, OfTheLawOfLeftovers) {
  const auto found = FindStep(StepKind::kTwoLineLeftovers);
  ASSERT_TRUE(found);
  const Layout& layout = found->explanation.layout;
  EXPECT_THAT(SentenceOf(layout, found->Step()),
              testing::MatchesRegex("The Law of Leftovers applies to (rows|columns) . and . and to "
                                    "the cages that start at cells .. and .."));
  EXPECT_THAT(ReasonOf(layout, found->Step()), StartsWith("The cells of the "));
}

TEST(Listing, NamesCellsAndDigits) {
  EXPECT_EQ(NamesOf(CellSet::Of(0)), "A1");
  EXPECT_EQ(NamesOf(CellSet::Of(0) | CellSet::Of(80), "or"), "A1 or J9");
  EXPECT_EQ(NamesOf(static_cast<Mask>(BitOf(1) | BitOf(4) | BitOf(9))), "1, 4 and 9");
}

}  // namespace
}  // namespace tessel::explain
