#include "hints/hint_result.h"

namespace tessel {

namespace {

std::int16_t& UnitOf(GameState& state, HouseKind kind) {
  switch (kind) {
    case HouseKind::kRow:
      return state.HintUnit1;
    case HouseKind::kColumn:
      return state.HintUnit2;
    case HouseKind::kCage:
      break;
  }
  return state.HintUnit3;
}

std::int16_t Field(int value) {
  return static_cast<std::int16_t>(value);
}

}  // namespace

void WriteNakedSingle(GameState& state, int cell) {
  state.HintKind = HintCode::NakedSingle;
  state.HintCell = Field(cell);
}

void WriteHiddenSingle(GameState& state, const HiddenSingleFind& find) {
  state.HintKind = CodeFor(HintCode::HiddenSingleRow, find.kind);
  UnitOf(state, find.kind) = Field(find.index);
  state.HintCell = Field(find.cell);
}

void WritePointingPair(GameState& state, const PointingFind& find) {
  state.HintKind = HintCode::PointingPair;
  state.HintCell = Field(find.cell);
  state.HintUnit3 = Field(find.cage);
  state.HintDigit = Field(find.digit);
}

void WriteBoxLine(GameState& state, const BoxLineFind& find) {
  state.HintKind = CodeFor(HintCode::BoxLineRow, find.line.kind);
  UnitOf(state, find.line.kind) = Field(find.line.index);
  state.HintUnit3 = Field(find.cage);
  state.HintDigit = Field(find.digit);
}

void WriteSubset(GameState& state, const SubsetFind& find, Subset family) {
  const HintCode inRow =
      family == Subset::Naked ? HintCode::NakedSubsetRow : HintCode::HiddenSubsetRow;
  const House& house = find.house;
  state.HintKind = CodeFor(inRow, house.kind);
  UnitOf(state, house.kind) = Field(house.kind == HouseKind::kCage ? house.index + 1 : house.index);
}

void WriteFish(GameState& state, const FishFind& find, HintCode inRows) {
  state.HintKind = CodeFor(inRows, find.kind);
  state.HintDigit = Field(find.digit);
  const std::array units{&state.HintUnit1, &state.HintUnit2, &state.HintUnit3};
  std::size_t next = 0;
  for (int line = 0; line < kSide; ++line) {
    if ((find.lines >> line & 1) != 0) *units[next++] = Field(line);
  }
}

}  // namespace tessel
