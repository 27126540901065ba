// The codes of the hints, as HintKind holds them.
#pragma once

#include <cstdint>

#include "core/houses.h"

namespace tessel {

// What a hint has found; `kNone` only until the first find.
enum class HintCode : std::int16_t {
  kNone = 0,
  kNakedSingle = 1,
  kHiddenSingleRow = 2,
  kHiddenSingleColumn = 3,
  kHiddenSingleCage = 4,
  kPointingPair = 5,
  kBoxLineRow = 6,
  kBoxLineColumn = 7,
  kNakedSubsetRow = 8,
  kNakedSubsetColumn = 9,
  kNakedSubsetCage = 10,
  kHiddenSubsetRow = 11,
  kHiddenSubsetColumn = 12,
  kHiddenSubsetCage = 13,
  kXWingRows = 14,
  kXWingColumns = 15,
  kSwordFishRows = 16,
  kSwordFishColumns = 17,
};

// The code of a technique for rows, columns or cages, given its code for rows.
constexpr HintCode CodeFor(HintCode inRow, HouseKind kind) {
  return static_cast<HintCode>(static_cast<int>(inRow) + static_cast<int>(kind));
}
static_assert(CodeFor(HintCode::kHiddenSingleRow, HouseKind::kCage) == HintCode::kHiddenSingleCage);
static_assert(CodeFor(HintCode::kBoxLineRow, HouseKind::kColumn) == HintCode::kBoxLineColumn);
static_assert(CodeFor(HintCode::kNakedSubsetRow, HouseKind::kCage) == HintCode::kNakedSubsetCage);
static_assert(CodeFor(HintCode::kHiddenSubsetRow, HouseKind::kCage) == HintCode::kHiddenSubsetCage);
static_assert(CodeFor(HintCode::kXWingRows, HouseKind::kColumn) == HintCode::kXWingColumns);
static_assert(CodeFor(HintCode::kSwordFishRows, HouseKind::kColumn) == HintCode::kSwordFishColumns);

}  // namespace tessel
