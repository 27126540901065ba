// The hint result as a value, with a stale number in every field that is not named.
#pragma once

#include <ostream>

#include "core/game_state.h"

namespace tessel {

inline constexpr int kStale = -7;

struct HintFields {
  int kind = kStale;
  int cell = kStale;
  int digit = kStale;
  int unit1 = kStale;
  int unit2 = kStale;
  int unit3 = kStale;

  friend bool operator==(const HintFields&, const HintFields&) = default;
};

inline std::ostream& operator<<(std::ostream& out, const HintFields& fields) {
  return out << "kind " << fields.kind << ", cell " << fields.cell << ", digit " << fields.digit
             << ", units " << fields.unit1 << ' ' << fields.unit2 << ' ' << fields.unit3;
}

inline HintFields FieldsOf(const GameState& state) {
  return {static_cast<int>(state.HintKind),
          state.HintCell,
          state.HintDigit,
          state.HintUnit1,
          state.HintUnit2,
          state.HintUnit3};
}

inline void SetFields(const HintFields& fields, GameState& state) {
  state.HintKind = static_cast<HintCode>(fields.kind);
  state.HintCell = static_cast<std::int16_t>(fields.cell);
  state.HintDigit = static_cast<std::int16_t>(fields.digit);
  state.HintUnit1 = static_cast<std::int16_t>(fields.unit1);
  state.HintUnit2 = static_cast<std::int16_t>(fields.unit2);
  state.HintUnit3 = static_cast<std::int16_t>(fields.unit3);
}

inline void MakeStale(GameState& state) {
  SetFields(HintFields{}, state);
}

}  // namespace tessel
