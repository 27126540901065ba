// The hint searches written a second time, loop by loop and with copied loops on purpose, to
// compare the program's own with. They share no code with it but the numbering of cells.
#pragma once

#include <array>
#include <initializer_list>

#include "core/game_state.h"

namespace tessel::literal {

using Cells = std::array<int, 9>;
using Board81 = std::array<int, 81>;
using Few = std::initializer_list<int>;  // positions in a house, or digits

inline constexpr auto kBitCount = [] {
  std::array<int, 512> count{};
  for (std::size_t mask = 1; mask < 512; ++mask) {
    count[mask] = count[mask / 2] + static_cast<int>(mask % 2);
  }
  return count;
}();

inline int BitCount(int mask) {
  return kBitCount[mask];
}
inline int Bit(int digit) {
  return 1 << (digit - 1);
}

struct LiteralHints {
  Board81 Board{};
  Board81 Solution{};
  Board81 Candidates{};
  Board81 SpecialMarks{};
  Board81 CageOfCell{};
  std::array<Cells, 9> CageCells{};

  int HintKind = 0;
  int HintCell = 0;
  int HintDigit = 0;
  int HintUnit1 = 0;
  int HintUnit2 = 0;
  int HintUnit3 = 0;

  // The techniques of the ladder.
  bool NakedSingle();
  bool HiddenSingle();
  bool PointingPair();
  bool BoxLine();
  bool NakedHidden(bool Naked, int CountSubset);
  bool XWing();
  bool SwordFish();

  // The techniques of the special pass, and its loop: true when it ends at a single.
  bool SpHiddenSingle();
  bool SpNakedSingle();
  bool SpPointingPair();
  bool SpBoxLine();
  bool SpNakedHidden(int CountSubset, bool Naked);
  bool SpecialHint();

  // The subset searches within one house. `positions` are places in the house.
  bool SubsetIn(const Cells& house, bool Naked, int CountSubset) const;
  bool NakedIsUseful(const Cells& house, Few positions, int required) const;
  bool HiddenIsUseful(const Cells& house, Few digits, int placed) const;
  // The digits that the board shows in the house.
  int PlacedIn(const Cells& house) const;

  // The same over SpecialMarks, with the one elimination.
  bool SpSubsetIn(const Cells& house, int CountSubset, bool Naked);
  bool SpNaked(const Cells& house, Few positions, int required);
  bool SpHidden(const Cells& house, Few digits, int placed);
};

// A copy of everything that the hints read or write.
LiteralHints CopyOf(const GameState& state);

}  // namespace tessel::literal
