// Naked and hidden subsets.
#include <algorithm>

#include "hints/pattern_search.h"

namespace tessel {

namespace {

// What the board and the masks show in a house, by position.
struct HouseContents {
  std::array<Mask, kSide> masks{};
  Positions empty = 0;
  Mask placed = 0;  // the digits on the board
};

HouseContents ContentsOf(const GameState& state, const MaskBoard& masks, const House& house) {
  HouseContents contents;
  int empty = 0;
  int placed = 0;
  for (int k = 0; k < kSide; ++k) {
    const int digit = state.PlayBoard.Board[house.cells[k]];
    if (digit == 0) {
      empty |= 1 << k;
    } else {
      placed |= BitOf(digit);
    }
    contents.masks[k] = masks[house.cells[k]];
  }
  contents.empty = static_cast<Positions>(empty);
  contents.placed = static_cast<Mask>(placed);
  return contents;
}

// The cells and the digits of a subset.
struct Members {
  Positions positions = 0;
  Mask digits = 0;
};

// Deliberate: a quint is compared with 4, so that on a consistent board there is never one.
int RequiredDigits(CountSubset count) {
  return std::min(count.size, 4);
}

// The empty cells that have few enough candidates to belong to a naked subset.
Positions EligiblePositions(const GameState& state, const HouseContents& in, CountSubset count) {
  int eligible = in.empty;
  for (int k = 0; k < kSide; ++k) {
    if (state.BitCount[in.masks[k]] > RequiredDigits(count)) eligible &= ~(1 << k);
  }
  return static_cast<Positions>(eligible);
}

// Deliberate: only a candidate that all the subset's cells hold makes a naked subset useful, which
// is narrower than one that any of them holds. The triple 12, 23, 13 is never found.
std::optional<Members> NakedSubsetAt(const GameState& state, const HouseContents& in,
                                     Positions positions, CountSubset count) {
  int united = 0;
  int common = kAllCandidates;
  for (auto rest = static_cast<unsigned>(positions); rest != 0; rest &= rest - 1) {
    const Mask mask = in.masks[std::countr_zero(rest)];
    united |= mask;
    common &= mask;
  }
  if (state.BitCount[united] != RequiredDigits(count)) return std::nullopt;
  const auto shares = [&](int k) { return (in.masks[k] & common) != 0; };
  if (!AnyOf(Without(kAllPositions, positions), shares)) return std::nullopt;
  return Members{positions, static_cast<Mask>(united)};
}

std::optional<Members> FindNakedIn(const GameState& state, const HouseContents& in,
                                   CountSubset count) {
  const Positions eligible = EligiblePositions(state, in, count);
  for (const Positions positions : CombinationsOf(count.size)) {
    if (Without(positions, eligible) != 0) continue;
    const auto members = NakedSubsetAt(state, in, positions, count);
    if (members) return members;
  }
  return std::nullopt;
}

std::optional<Members> HiddenSubsetAt(const GameState& state, const HouseContents& in, Mask digits,
                                      CountSubset count) {
  int meeting = 0;
  for (int k = 0; k < kSide; ++k) meeting |= (in.masks[k] & digits) != 0 ? 1 << k : 0;
  const auto positions = static_cast<Positions>(meeting & in.empty);
  if (state.BitCount[positions] != count.size) return std::nullopt;
  const auto hasMore = [&](int k) { return Without(in.masks[k], digits) != 0; };
  if (!AnyOf(positions, hasMore)) return std::nullopt;
  return Members{positions, digits};
}

std::optional<Members> FindHiddenIn(const GameState& state, const HouseContents& in,
                                    CountSubset count) {
  if (count.size > 3) return std::nullopt;
  for (const Mask digits : CombinationsOf(count.size)) {
    if ((digits & in.placed) != 0) continue;
    const auto members = HiddenSubsetAt(state, in, digits, count);
    if (members) return members;
  }
  return std::nullopt;
}

}  // namespace

std::optional<SubsetFind> FindSubset(const GameState& state, const MaskBoard& masks, Subset family,
                                     CountSubset count) {
  const auto findIn = family == Subset::Naked ? FindNakedIn : FindHiddenIn;
  for (const House& house : HousesOf(state)) {
    const auto members = findIn(state, ContentsOf(state, masks, house), count);
    if (members) return SubsetFind{house, members->positions, members->digits};
  }
  return std::nullopt;
}

}  // namespace tessel
