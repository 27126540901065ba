// Each pass over the lanes against a scalar twin, on random levels. The twins say what the passes
// do, one cell after another.
#include <gtest/gtest.h>

#include <utility>

#include "search/singles_kernels.h"
#include "tests/oracle/search/program_layout.h"
#include "tests/oracle/search/samples.h"

namespace tessel {
namespace {

constexpr int kLevels = 2'000;

struct RandomLevel {
  SearchLevel level;
  int lastUnfilled = -1;
};

// A level in which 1 to 81 cells are unfilled, in a random order. Most cells have few candidates,
// some have none, and filled ones have leftovers.
RandomLevel DrawLevel(RandomSource& random) {
  RandomLevel drawn;
  drawn.level.Order = oracle::DrawOrder(random);
  drawn.lastUnfilled = DrawIndex(random, kCellCount);
  for (int position = 0; position < kCellCount; ++position) {
    const int cell = drawn.level.Order[position];
    const int a = DrawIndex(random, 512);
    const int b = DrawIndex(random, 512);
    const int c = DrawIndex(random, 4) == 0 ? 511 : DrawIndex(random, 512);
    drawn.level.Candidates[cell] = static_cast<Mask>(a & b & c);
    if (DrawIndex(random, 100) > 0 && drawn.level.Candidates[cell] == 0) {
      drawn.level.Candidates[cell] = 0b11;
    }
    const bool unfilled = position <= drawn.lastUnfilled;
    if (unfilled) drawn.level.positionKey[cell] = PositionKeyAt(position, cell);
    if (!unfilled) drawn.level.Digit[cell] = static_cast<std::int16_t>(1 + DrawIndex(random, 9));
  }
  return drawn;
}

bool Unfilled(const SearchLevel& level, int cell) {
  return level.positionKey[cell] != 0;
}

// The first cell in Order without a candidate, else the first with one.
BoardStatus TwinOfStatus(const SearchLevel& level) {
  int single = 0;
  for (int position = kCellCount - 1; position >= 0; --position) {
    const int cell = level.Order[position];
    if (!Unfilled(level, cell)) continue;
    if (level.Candidates[cell] == 0) return BoardStatus(kUnfilledMark);
    if (CandidateCount(level.Candidates[cell]) == 1) single = PositionKeyAt(position, cell);
  }
  return BoardStatus(static_cast<std::int16_t>(single & ~kUnfilledMark));
}

// The position of the cell in its house.
int PlaceIn(const HouseCells& house, int cell) {
  return static_cast<int>(std::ranges::find(house, cell) - house.begin());
}

void TwinOfPlaceTrial(SearchLevel& level, const Layout& layout, int placed, Mask bit, int entry) {
  level.positionKey[placed] = 0;
  int rowMask = 0;
  int columnMask = 0;
  int cageMask = 0;
  ForEach(layout.PeersOf(placed), [&](int cell) {
    if (!Unfilled(level, cell) || (level.Candidates[cell] & bit) == 0) return;
    level.Candidates[cell] = Without(level.Candidates[cell], bit);
    if (RowOf(cell) == RowOf(placed)) {
      rowMask |= 1 << ColumnOf(cell);
    } else if (ColumnOf(cell) == ColumnOf(placed)) {
      columnMask |= 1 << RowOf(cell);
    } else {
      cageMask |= 1 << PlaceIn(layout.CellsOf(layout.CageOf(placed)), cell);
    }
  });
  level.UndoRowMask[entry] = static_cast<Mask>(rowMask);
  level.UndoColumnMask[entry] = static_cast<Mask>(columnMask);
  level.UndoCageMask[entry] = static_cast<Mask>(cageMask);
}

void TwinOfUndoTrial(SearchLevel& level, const Layout& layout, int placed, std::int16_t key,
                     Mask bit, int entry) {
  level.positionKey[placed] = key;
  for (int k = 0; k < kSide; ++k) {
    const auto giveBack = [&](Mask lost, int cell) {
      if ((lost >> k & 1) != 0) level.Candidates[cell] |= bit;
    };
    giveBack(level.UndoRowMask[entry], CellAt(RowOf(placed), k));
    giveBack(level.UndoColumnMask[entry], CellAt(k, ColumnOf(placed)));
    giveBack(level.UndoCageMask[entry], layout.CellsOf(layout.CageOf(placed))[k]);
  }
}

// Places one single, straight in the level.
void TwinOfOneSingle(SearchLevel& level, const Layout& layout, int position, int lastUnfilled) {
  const int cell = level.Order[position];
  const Mask bit = level.Candidates[cell];
  const int last = level.Order[lastUnfilled];
  std::swap(level.Order[position], level.Order[lastUnfilled]);
  level.positionKey[last] = PositionKeyAt(position, last);
  level.positionKey[cell] = 0;
  level.Candidates[cell] = 0;
  level.Digit[cell] = static_cast<std::int16_t>(LowestDigitOf(bit));
  ForEach(layout.PeersOf(cell), [&](int peer) {
    if (Unfilled(level, peer)) level.Candidates[peer] = Without(level.Candidates[peer], bit);
  });
}

void ExpectSame(const SearchLevel& level, const SearchLevel& twin) {
  EXPECT_EQ(level.Digit, twin.Digit);
  EXPECT_EQ(level.Order, twin.Order);
  EXPECT_EQ(level.Candidates, twin.Candidates);
  EXPECT_EQ(level.positionKey, twin.positionKey);
  EXPECT_EQ(level.UndoRowMask, twin.UndoRowMask);
  EXPECT_EQ(level.UndoColumnMask, twin.UndoColumnMask);
  EXPECT_EQ(level.UndoCageMask, twin.UndoCageMask);
}

void ExpectSame(BoardStatus status, BoardStatus twin) {
  ASSERT_EQ(status.Contradiction(), twin.Contradiction());
  ASSERT_EQ(status.Single(), twin.Single());
  if (!status.Single()) return;
  EXPECT_EQ(status.SingleCell(), twin.SingleCell());
  EXPECT_EQ(status.SinglePosition(), twin.SinglePosition());
}

struct LaneKernels : testing::Test {
  template <typename Check>
  void OnRandomLevels(const Check& check) {
    for (int n = 0; n < kLevels && !HasFailure(); ++n) {
      SCOPED_TRACE(n);
      if (n % 100 == 0) UseLayout(static_cast<std::uint64_t>(n));
      check(DrawLevel(random));
    }
  }
  void UseLayout(std::uint64_t seed) {
    const auto mode = oracle::LiteralLayout::Mode::kRandom;
    layout = oracle::ProgramLayout(oracle::SampleLayout(seed, mode));
    tables = PeerTables(layout);
  }
  int DrawUnfilled(const RandomLevel& drawn) {
    return drawn.level.Order[DrawIndex(random, drawn.lastUnfilled + 1)];
  }
  Mask DrawBit() { return BitOf(1 + DrawIndex(random, kSide)); }
  int DrawEntry() { return 1 + DrawIndex(random, kCellCount - 1); }

  SeededRandom random{17};
  Layout layout = Layout::Regular();
  PeerTables tables{layout};
};

TEST_F(LaneKernels, StatusNamesAContradictionElseTheFirstSingle) {
  int singles = 0;
  int contradictions = 0;
  OnRandomLevels([&](const RandomLevel& drawn) {
    const BoardStatus status = kernels::StatusOf(drawn.level);
    ExpectSame(status, TwinOfStatus(drawn.level));
    singles += status.Single();
    contradictions += status.Contradiction();
  });
  EXPECT_GT(singles, kLevels / 4);
  EXPECT_GT(contradictions, kLevels / 20);
}

TEST_F(LaneKernels, PlaceTrialRemovesTheDigitFromUnfilledPeersAndRecordsThem) {
  OnRandomLevels([&](const RandomLevel& drawn) {
    SearchLevel level = drawn.level;
    SearchLevel twin = drawn.level;
    const int cell = DrawUnfilled(drawn);
    const Mask bit = DrawBit();
    const int entry = DrawEntry();
    const BoardStatus status = kernels::PlaceTrial(level, tables, cell, bit, entry);
    TwinOfPlaceTrial(twin, layout, cell, bit, entry);
    ExpectSame(level, twin);
    ExpectSame(status, TwinOfStatus(twin));
  });
}

TEST_F(LaneKernels, UndoTrialGivesTheDigitBackToThoseThatLostIt) {
  OnRandomLevels([&](const RandomLevel& drawn) {
    SearchLevel level = drawn.level;
    const int cell = DrawUnfilled(drawn);
    const std::int16_t key = level.positionKey[cell];
    const Mask bit = DrawBit();
    const int entry = DrawEntry();
    kernels::PlaceTrial(level, tables, cell, bit, entry);
    SearchLevel twin = level;
    kernels::UndoTrial(level, tables, cell, key, bit, entry);
    TwinOfUndoTrial(twin, layout, cell, key, bit, entry);
    ExpectSame(level, twin);
    EXPECT_EQ(level.Candidates, drawn.level.Candidates);
    EXPECT_EQ(level.positionKey, drawn.level.positionKey);
  });
}

TEST_F(LaneKernels, ReplaceTrialIsUndoAndPlaceInOne) {
  OnRandomLevels([&](const RandomLevel& drawn) {
    SearchLevel level = drawn.level;
    const int cell = DrawUnfilled(drawn);
    const std::int16_t key = level.positionKey[cell];
    const Mask oldBit = DrawBit();
    const Mask bit = DrawBit();
    const int entry = DrawEntry();
    kernels::PlaceTrial(level, tables, cell, oldBit, entry);
    SearchLevel twin = level;
    const BoardStatus status = kernels::ReplaceTrial(level, tables, cell, oldBit, bit, entry);
    TwinOfUndoTrial(twin, layout, cell, key, oldBit, entry);
    TwinOfPlaceTrial(twin, layout, cell, bit, entry);
    ExpectSame(level, twin);
    ExpectSame(status, TwinOfStatus(twin));
  });
}

TEST_F(LaneKernels, SinglesArePlacedFirstInOrderFirstUpToTheLimit) {
  int runs = 0;
  OnRandomLevels([&](const RandomLevel& drawn) {
    BoardStatus twinStatus = TwinOfStatus(drawn.level);
    if (!twinStatus.Single()) return;
    const int maxSingles = 1 + DrawIndex(random, 6);
    SearchLevel twin = drawn.level;
    int placed = 0;
    for (; placed < maxSingles && twinStatus.Single(); ++placed) {
      TwinOfOneSingle(twin, layout, twinStatus.SinglePosition(), drawn.lastUnfilled - placed);
      twinStatus = TwinOfStatus(twin);
    }
    SinglesScratch scratch;
    const BoardStatus status = kernels::PropagateSingles(
        drawn.level, tables, TwinOfStatus(drawn.level), drawn.lastUnfilled, maxSingles, scratch);
    ASSERT_EQ(scratch.count, placed);
    ExpectSame(status, twinStatus);
    SearchLevel level = drawn.level;
    kernels::CommitSingles(scratch, drawn.lastUnfilled, level);
    ExpectSame(level, twin);
    runs += placed > 1;
  });
  EXPECT_GT(runs, kLevels / 10);
}

}  // namespace
}  // namespace tessel
