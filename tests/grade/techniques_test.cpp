// The fast searches against the hints' own, kind by kind, on boards in the middle of a game.
#include <gtest/gtest.h>

#include <cstdlib>

#include "grade/quick_steps.h"
#include "grade/way.h"
#include "hints/ladder.h"
#include "tests/grade/made_boards.h"
#include "tests/sample_count.h"

namespace tessel::grade {
namespace {

// TESSEL_BOARDS asks for another number of boards: 100,000 take a minute.
int Boards() {
  const char* const asked = std::getenv("TESSEL_BOARDS");
  if (asked != nullptr) return std::atoi(asked);
#ifdef __SANITIZE_ADDRESS__
  return 3'000;
#else
  return 20'000;
#endif
}

MaskBoard RemovedBy(const std::vector<Step>& steps) {
  MaskBoard removed{};
  for (const Step& step : steps) {
    for (const auto& [cell, digits] : step.removals) {
      removed[cell] = static_cast<Mask>(removed[cell] | digits);
    }
  }
  return removed;
}

MaskBoard RemovedBy(const std::vector<const Technique*>& techniques, const MadeBoard& board) {
  MaskBoard removed{};
  const MarkedBoard marked{board.layout, board.position.digits, board.position.candidates};
  for (const Technique* technique : techniques) {
    for (const Hint& hint : AllHints(*technique, marked)) {
      for (const auto& [cell, digits] : hint.eliminations) {
        removed[cell] = static_cast<Mask>(removed[cell] | digits);
      }
    }
  }
  return removed;
}

// What is really lost: a naked set tells all its digits to every cell.
MaskBoard RemovedBy(const Removals& removals, const CandidateGrid& position) {
  MaskBoard removed{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    removed[cell] = static_cast<Mask>(removals.digits[cell] & position.candidates[cell]);
  }
  return removed;
}

MaskBoard RemovedQuickly(const std::vector<StepKind>& kinds, const MadeBoard& board) {
  const QuickPosition position(board.layout, board.position);
  MaskBoard removed{};
  for (const StepKind kind : kinds) {
    const MaskBoard one = RemovedBy(RemovalsOf(kind, position), board.position);
    for (int cell = 0; cell < kCellCount; ++cell) {
      removed[cell] = static_cast<Mask>(removed[cell] | one[cell]);
    }
  }
  return removed;
}

struct Row {
  std::vector<StepKind> kinds;
  std::vector<const Technique*> techniques;
};

TEST(Techniques, RemoveWhatTheHintsRemove) {
  const std::vector<Row> rows{
      {{StepKind::kPointing}, {&kPointingPair}},
      {{StepKind::kClaiming}, {&kBoxLine}},
      {{StepKind::kXWing}, {&tessel::kXWing}},
      {{StepKind::kSwordFish}, {&tessel::kSwordFish}},
      {{StepKind::kNakedPair, StepKind::kHiddenPair, StepKind::kNakedTriple,
        StepKind::kHiddenTriple, StepKind::kNakedQuad},
       {&tessel::kNakedPair, &tessel::kHiddenPair, &tessel::kNakedTriple, &tessel::kHiddenTriple,
        &tessel::kNakedQuad}},
  };
  BoardMaker maker;
  std::vector<int> found(rows.size());
  for (int i = 0; i < Boards(); ++i) {
    const MadeBoard board = maker.Next();
    for (std::size_t row = 0; row < rows.size(); ++row) {
      const MaskBoard expected = RemovedBy(rows[row].techniques, board);
      ASSERT_EQ(RemovedQuickly(rows[row].kinds, board), expected)
          << "board " << i << " row " << row;
      found[row] += expected != MaskBoard{} ? 1 : 0;
    }
  }
  for (const int boards : found) EXPECT_GT(boards, 0);
}

TEST(Techniques, FastSearchesCountWhatThePlainOnesCount) {
  BoardMaker maker;
  std::array<int, kStepKindCount> found{};
  for (int i = 0; i < Boards() / 5; ++i) {
    const MadeBoard board = maker.Next();
    const QuickPosition quick(board.layout, board.position);
    for (const StepKindFacts& facts : kStepKinds) {
      const std::vector<Step> plain = StepsOf(facts.kind, board.layout, board.position);
      const Removals removals = RemovalsOf(facts.kind, quick);
      ASSERT_EQ(removals.steps, static_cast<int>(plain.size())) << facts.name << " board " << i;
      ASSERT_EQ(RemovedBy(removals, board.position), RemovedBy(plain)) << facts.name;
      found[static_cast<std::size_t>(facts.kind)] += removals.steps;
    }
  }
  for (const StepKindFacts& facts : kStepKinds) {
    if (facts.kind <= StepKind::kHiddenSingle) continue;
    EXPECT_GT(found[static_cast<std::size_t>(facts.kind)], 0) << facts.name;
  }
}

// Removing anything that is true would be found out here, too.
TEST(Techniques, EveryRemovalIsTrueInTheSolution) {
  BoardMaker maker;
  for (int i = 0; i < Boards() / 5; ++i) {
    const MadeBoard board = maker.Next();
    const QuickPosition quick(board.layout, board.position);
    for (const StepKindFacts& facts : kStepKinds) {
      const Removals removals = RemovalsOf(facts.kind, quick);
      for (int cell = 0; cell < kCellCount; ++cell) {
        ASSERT_FALSE(Holds(removals.digits[cell], board.solution[cell]) &&
                     board.position.digits[cell] == 0)
            << facts.name << " board " << i << " cell " << cell;
      }
    }
  }
}

bool HasQuint(const Layout& layout, const CandidateGrid& position) {
  return FirstHint(kNakedQuint, {layout, position.digits, position.candidates}).has_value();
}

// The hint ladder asks for quints before X-Wings. A grader that did would take the same way.
TEST(Techniques, QuintsChangeNoGrade) {
  PuzzleMaker maker;
  int asked = 0;
  for (std::uint64_t seed = 0; seed < Samples<std::uint64_t>(10'000); ++seed) {
    const Puzzle puzzle = maker.MakeAnyKind(seed);
    const Grade grade = GradeOf(puzzle.layout, puzzle.givens);
    if (grade.level != Level::kBeyond && grade.hardest < StepKind::kXWing) continue;
    const Way way = WayOf(puzzle.layout, puzzle.givens);
    ASSERT_FALSE(HasQuint(puzzle.layout, way.start)) << "seed " << seed;
    for (const Round& round : way.rounds) {
      ASSERT_FALSE(HasQuint(puzzle.layout, round.after)) << "seed " << seed;
    }
    ++asked;
  }
  EXPECT_GT(asked, Samples(100));
}

TEST(Leftovers, OfOneLineSayWhatPointingAndClaimingSay) {
  BoardMaker maker;
  int compared = 0;
  for (int i = 0; i < Boards() / 4; ++i) {
    const MadeBoard board = maker.Next();
    if (!StepsOf(StepKind::kPointing, board.layout, board.position).empty()) continue;
    if (!StepsOf(StepKind::kClaiming, board.layout, board.position).empty()) continue;
    ++compared;
    ASSERT_TRUE(LeftoverSteps(1, board.layout, board.position).empty()) << "board " << i;
  }
  EXPECT_GT(compared, 20);
}

}  // namespace
}  // namespace tessel::grade
