#include "tests/oracle/search/bits.h"
#include "tests/oracle/search/literal_search.h"

namespace tessel::oracle {

bool LiteralSearch::DLXNakedSingle(int Ptr) {
  LiteralLevel& top = Top();
  std::array<bool, 81> free{};
  for (int i = 0; i <= Ptr; ++i) free[top.Order[i]] = true;

  int k = 0;
  while (k <= Ptr && bitCount_[top.Candidates[top.Order[k]]] != 1) ++k;
  if (k > Ptr) return false;
  const std::int16_t cell = top.Order[k];

  int digit = 1;
  while (BitOfDigit(digit) != top.Candidates[cell]) ++digit;
  const int bit = BitOfDigit(digit);
  top.Digit[cell] = static_cast<std::int16_t>(digit);
  top.Candidates[cell] = 0;

  const int row = cell / 9;
  const int column = cell % 9;
  const auto& cage = layout_.cageCells[layout_.cageOfCell[cell] - 1];
  for (int i = 0; i < 9; ++i) {
    if (free[9 * row + i]) ClearBit(top.Candidates[9 * row + i], bit);
    if (free[9 * i + column]) ClearBit(top.Candidates[9 * i + column], bit);
    if (free[cage[i]]) ClearBit(top.Candidates[cage[i]], bit);
  }

  int j = 0;
  while (top.Order[j] != cell) ++j;
  top.Order[j] = top.Order[Ptr];
  top.Order[Ptr] = cell;
  return true;
}

void LiteralSearch::DLXRemoveCandidates(int Cell, int Candidate, int RemovePtr) {
  LiteralLevel& top = Top();
  const int u = ++top.UndoCount;
  top.UndoCell[u] = static_cast<std::int16_t>(Cell);
  top.UndoDigit[u] = static_cast<std::int16_t>(Candidate);
  top.UndoColumnMask[u] = top.UndoRowMask[u] = top.UndoCageMask[u] = 0;

  const int row = Cell / 9;
  const int column = Cell % 9;
  const int cage = layout_.cageOfCell[Cell];
  const int bit = BitOfDigit(Candidate);
  for (int i = 0; i <= RemovePtr; ++i) {
    const int c = top.Order[i];
    if (!HasBit(top.Candidates[c], bit)) continue;
    if (c / 9 == row) {
      SetBit(top.UndoRowMask[u], 1 << c % 9);
    } else if (c % 9 == column) {
      SetBit(top.UndoColumnMask[u], 1 << c / 9);
    } else if (layout_.cageOfCell[c] == cage) {
      int k = 0;
      while (layout_.cageCells[cage - 1][k] != c) ++k;
      SetBit(top.UndoCageMask[u], 1 << k);
    } else {
      continue;
    }
    ClearBit(top.Candidates[c], bit);
  }
}

void LiteralSearch::DLXUndo() {
  LiteralLevel& top = Top();
  const int u = top.UndoCount;
  const int cell = top.UndoCell[u];
  top.Digit[cell] = 0;

  const int row = cell / 9;
  const int column = cell % 9;
  const auto& cage = layout_.cageCells[layout_.cageOfCell[cell] - 1];
  const int bit = BitOfDigit(top.UndoDigit[u]);
  for (int i = 0; i < 9; ++i) {
    if (HasBit(top.UndoRowMask[u], 1 << i)) SetBit(top.Candidates[9 * row + i], bit);
    if (HasBit(top.UndoColumnMask[u], 1 << i)) SetBit(top.Candidates[9 * i + column], bit);
    if (HasBit(top.UndoCageMask[u], 1 << i)) SetBit(top.Candidates[cage[i]], bit);
  }
  --top.UndoCount;
}

}  // namespace tessel::oracle
