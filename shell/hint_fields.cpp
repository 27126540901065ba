#include "shell/hint_fields.h"

#include <array>
#include <cassert>

namespace tessel {

namespace {

std::int16_t Field(int value) {
  return static_cast<std::int16_t>(value);
}

// Deliberate: a hidden single's cage is written as its index 0..8, every other one as its number
// 1..9.
std::int16_t UnitFor(const House& house, HintCode code) {
  const bool asNumber = house.kind == HouseKind::kCage && code != HintCode::kHiddenSingleCage;
  return Field(asNumber ? house.index + 1 : house.index);
}

// Whether the houses are several lines of one kind.
bool AreParallel(const std::vector<House>& houses) {
  return houses.size() > 1 && houses[0].kind == houses[1].kind;
}

}  // namespace

void WriteHintFields(GameState& state, const Hint& hint) {
  state.HintKind = hint.code;
  if (hint.cell) state.HintCell = Field(*hint.cell);
  if (hint.digit && !hint.PlacesDigit()) state.HintDigit = Field(*hint.digit);
  const std::array units{&state.HintUnit1, &state.HintUnit2, &state.HintUnit3};
  const bool parallel = AreParallel(hint.houses);
  assert(hint.houses.size() <= units.size());
  for (std::size_t i = 0; i < hint.houses.size(); ++i) {
    const House& house = hint.houses[i];
    *units[parallel ? i : static_cast<std::size_t>(house.kind)] = UnitFor(house, hint.code);
  }
}

}  // namespace tessel
