// Writing the hint result fields from what a search found.
#pragma once

#include "hints/pattern_search.h"

namespace tessel {

// The code of a technique for rows, columns or cages, given its code for rows.
constexpr HintCode CodeFor(HintCode inRow, HouseKind kind) {
  return static_cast<HintCode>(static_cast<int>(inRow) + static_cast<int>(kind));
}
static_assert(CodeFor(HintCode::HiddenSingleRow, HouseKind::kCage) == HintCode::HiddenSingleCage);
static_assert(CodeFor(HintCode::BoxLineRow, HouseKind::kColumn) == HintCode::BoxLineColumn);
static_assert(CodeFor(HintCode::NakedSubsetRow, HouseKind::kCage) == HintCode::NakedSubsetCage);
static_assert(CodeFor(HintCode::HiddenSubsetRow, HouseKind::kCage) == HintCode::HiddenSubsetCage);
static_assert(CodeFor(HintCode::XWingRows, HouseKind::kColumn) == HintCode::XWingColumns);
static_assert(CodeFor(HintCode::SwordFishRows, HouseKind::kColumn) == HintCode::SwordFishColumns);

void WriteNakedSingle(GameState& state, int cell);
// Deliberate: a cage is written as its index 0..8 here, and as its number 1..9 by every other
// technique. The digit is left to the caller.
void WriteHiddenSingle(GameState& state, const HiddenSingleFind& find);
void WritePointingPair(GameState& state, const PointingFind& find);
void WriteBoxLine(GameState& state, const BoxLineFind& find);
void WriteSubset(GameState& state, const SubsetFind& find, Subset family);
// `inRows` is the code of the fish on rows.
void WriteFish(GameState& state, const FishFind& find, HintCode inRows);

}  // namespace tessel
