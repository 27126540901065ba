#include "shell/vestiges.h"

#include <algorithm>
#include <cassert>
#include <optional>

namespace tessel {

namespace {

constexpr Rgb kSpecialMark{0x10, 0xD0, 0xD0};
constexpr Rgb kWindowText = kBlack;

// To exactly one entry more than there are steps, as entry 0 is unused.
void ResizeUndoArrays(GameState& state) {
  for (auto* entries : {&state.UndoDigit, &state.UndoCell, &state.UndoRowMask,
                        &state.UndoColumnMask, &state.UndoCageMask}) {
    entries->resize(static_cast<std::size_t>(state.UndoCount) + 1);
    entries->shrink_to_fit();
  }
}

void PushStep(GameState& state, int cell, int digit) {
  const int top = ++state.UndoCount;
  ResizeUndoArrays(state);
  state.UndoCell[top] = static_cast<std::int16_t>(cell);
  state.UndoDigit[top] = static_cast<std::int16_t>(digit);
  state.UndoRowMask[top] = 0;
  state.UndoColumnMask[top] = 0;
  state.UndoCageMask[top] = 0;
}

// A bit in a mask of the newest undo step.
struct UndoBit {
  std::int16_t* mask = nullptr;
  int k = 0;
};

// Where the removal from `peer` is recorded: in the first of row, column and cage that it shares
// with `cell`.
std::optional<UndoBit> UndoBitFor(GameState& state, int cell, int peer) {
  const int top = state.UndoCount;
  if (RowOf(peer) == RowOf(cell)) return UndoBit{&state.UndoRowMask[top], ColumnOf(peer)};
  if (ColumnOf(peer) == ColumnOf(cell)) return UndoBit{&state.UndoColumnMask[top], RowOf(peer)};
  const auto cage = CageAround(state, cell);
  const auto place = std::ranges::find(cage, peer);
  if (place == cage.end()) return std::nullopt;
  return UndoBit{&state.UndoCageMask[top], static_cast<int>(place - cage.begin())};
}

}  // namespace

void Vestiges::RemoveCandidates(int Cell, int Candidate, int RemovePtr) {
  assert(RemovePtr < kCellCount);
  PushStep(state_, Cell, Candidate);
  for (int i = 0; i <= RemovePtr; ++i) {
    const int peer = state_.CellList[i];
    Mask& candidates = state_.Candidates[peer];
    if (!Holds(candidates, Candidate)) continue;
    const auto bit = UndoBitFor(state_, Cell, peer);
    if (!bit) continue;
    *bit->mask = static_cast<std::int16_t>(*bit->mask | 1 << bit->k);
    candidates = Without(candidates, BitOf(Candidate));
  }
}

// Deliberate: the entry is cleared in WorkGrid, not on the board as played.
void Vestiges::Undo() {
  if (state_.UndoCount == 0) return;
  const int top = state_.UndoCount;
  const int cell = state_.UndoCell[top];
  const auto cage = CageAround(state_, cell);
  const auto putBack = [&](int mask, int k, int peer) {
    if ((mask >> k & 1) == 0) return;
    Mask& candidates = state_.Candidates[peer];
    candidates = static_cast<Mask>(candidates | BitOf(state_.UndoDigit[top]));
  };
  state_.WorkGrid[cell] = 0;
  for (int k = 0; k < kSide; ++k) {
    putBack(state_.UndoRowMask[top], k, CellAt(RowOf(cell), k));
    putBack(state_.UndoColumnMask[top], k, CellAt(k, ColumnOf(cell)));
    if (!cage.empty()) putBack(state_.UndoCageMask[top], k, cage[k]);
  }
  --state_.UndoCount;
}

void Vestiges::WriteHint() {}

void Vestiges::AddText(const std::string& TextLine) {
  form_.SelectText1(65535, 0);
  form_.ReplaceText1Selection(TextLine);
}

void Vestiges::SpecialPencilmarks(bool highlighted) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetMarksColour(cell, highlighted ? kSpecialMark : kWindowText);
    form_.SetMarksVisible(cell, true);
  }
}

}  // namespace tessel
