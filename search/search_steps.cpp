// The step procedures of the search: placing, removing, undoing.
#include <bit>
#include <cassert>
#include <utility>

#include "search/exact_cover_search.h"

namespace tessel {

namespace {

// Takes `bit` from `cell` if it is unfilled and has it; 1 when it was taken, else 0.
int Take(SearchLevel& level, int cell, Mask bit) {
  const int taken = static_cast<int>(level.Digit[cell] == 0) &
                    static_cast<int>((level.Candidates[cell] & bit) != 0);
  level.Candidates[cell] = Without(level.Candidates[cell], static_cast<Mask>(-taken & bit));
  return taken;
}

}  // namespace

bool ExactCoverSearch::DLXNakedSingle(int Ptr) {
  SearchLevel& level = Levels[Depth];
  int k = 0;
  while (k <= Ptr && state_.BitCount[level.Candidates[level.Order[k]]] != 1) ++k;
  if (k > Ptr) return false;
  const int cell = level.Order[k];
  const Mask bit = level.Candidates[cell];
  level.Digit[cell] = static_cast<std::int16_t>(std::countr_zero(static_cast<unsigned>(bit)) + 1);
  level.Candidates[cell] = 0;
  const std::span<const std::int16_t> cage = CageAround(state_, cell);
  for (int i = 0; i < kSide; ++i) {
    Take(level, CellAt(RowOf(cell), i), bit);
    Take(level, CellAt(i, ColumnOf(cell)), bit);
  }
  for (const std::int16_t peer : cage) Take(level, peer, bit);
  std::swap(level.Order[k], level.Order[Ptr]);
  return true;
}

void ExactCoverSearch::DLXRemoveCandidates(int Cell, int Candidate, int RemovePtr) {
  SearchLevel& level = Levels[Depth];
  assert(level.Digit[Cell] == Candidate);
  assert(RemovePtr < 0 || level.Digit[level.Order[RemovePtr]] == 0);
  const int u = ++level.UndoCount;
  level.UndoCell[u] = static_cast<std::int16_t>(Cell);
  level.UndoDigit[u] = static_cast<std::int16_t>(Candidate);
  const Mask bit = BitOf(Candidate);
  const std::span<const std::int16_t> cage = CageAround(state_, Cell);
  // What the row has lost the column cannot lose again, nor the cage what both have lost.
  int rowMask = 0;
  int columnMask = 0;
  int cageMask = 0;
  for (int i = 0; i < kSide; ++i) rowMask |= Take(level, CellAt(RowOf(Cell), i), bit) << i;
  for (int i = 0; i < kSide; ++i) columnMask |= Take(level, CellAt(i, ColumnOf(Cell)), bit) << i;
  for (std::size_t k = 0; k < cage.size(); ++k) cageMask |= Take(level, cage[k], bit) << k;
  level.UndoRowMask[u] = static_cast<std::int16_t>(rowMask);
  level.UndoColumnMask[u] = static_cast<std::int16_t>(columnMask);
  level.UndoCageMask[u] = static_cast<std::int16_t>(cageMask);
}

void ExactCoverSearch::DLXUndo() {
  SearchLevel& level = Levels[Depth];
  const int u = level.UndoCount;
  const int cell = level.UndoCell[u];
  const Mask bit = BitOf(level.UndoDigit[u]);
  level.Digit[cell] = 0;
  const auto giveBack = [&](int peer, int lost) {
    level.Candidates[peer] = static_cast<Mask>(level.Candidates[peer] | (-(lost & 1) & bit));
  };
  const std::span<const std::int16_t> cage = CageAround(state_, cell);
  for (int i = 0; i < kSide; ++i) {
    giveBack(CellAt(RowOf(cell), i), level.UndoRowMask[u] >> i);
    giveBack(CellAt(i, ColumnOf(cell)), level.UndoColumnMask[u] >> i);
  }
  for (std::size_t k = 0; k < cage.size(); ++k) giveBack(cage[k], level.UndoCageMask[u] >> k);
  --level.UndoCount;
}

}  // namespace tessel
