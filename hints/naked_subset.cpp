// Naked subsets: as many cells of a house as they have digits between them, which can go from its
// other cells. Houses come first, then combinations of positions.
#include <algorithm>

#include "hints/ladder.h"
#include "hints/subset.h"
#include "hints/wording.h"

namespace tessel {

namespace {

// Deliberate: a quint is compared with 4, so that on a consistent board there is never one.
constexpr int RequiredDigits(int size) {
  return std::min(size, 4);
}

// The empty cells that have few enough candidates to belong to a subset.
Positions EligiblePositions(const HouseContents& in, int size) {
  int eligible = in.empty;
  for (int k = 0; k < kSide; ++k) {
    if (SizeOf(in.candidates[k]) > RequiredDigits(size)) eligible &= ~(1 << k);
  }
  return static_cast<Positions>(eligible);
}

// The digits of the subset at `positions`; none unless it is one, and useful.
// Deliberate: only a candidate that all the subset's cells hold makes it useful, which is narrower
// than one that any of them holds. The triple 12, 23, 13 is never found.
std::optional<Mask> UsefulDigits(const HouseContents& in, Positions positions, int size) {
  int united = 0;
  int common = kAllCandidates;
  for (auto rest = static_cast<unsigned>(positions); rest != 0; rest &= rest - 1) {
    const Mask mask = in.candidates[std::countr_zero(rest)];
    united |= mask;
    common &= mask;
  }
  const auto digits = static_cast<Mask>(united);
  if (SizeOf(digits) != RequiredDigits(size)) return std::nullopt;
  const auto shares = [&](int k) { return (in.candidates[k] & common) != 0; };
  if (!AnyOf(Without(kAllPositions, positions), shares)) return std::nullopt;
  return digits;
}

// Every other cell of the house loses all the subset's digits that it holds, not just the common
// ones.
Hint HintAt(const House& house, const HouseContents& in, Positions positions, Mask digits) {
  return SubsetHint(HintCode::kNakedSubsetRow, house, positions, digits, [&](int k) {
    return HasPosition(positions, k) ? Mask{0} : static_cast<Mask>(in.candidates[k] & digits);
  });
}

template <int size>
void Search(const MarkedBoard& board, const HintVisitor& visit) {
  for (const House& house : board.layout.AllHouses()) {
    const HouseContents in = ContentsOf(board, house);
    const Positions eligible = EligiblePositions(in, size);
    for (const Positions positions : CombinationsOf(size)) {
      if (Without(positions, eligible) != 0) continue;
      const auto digits = UsefulDigits(in, positions, size);
      if (digits && !visit(HintAt(house, in, positions, *digits))) return;
    }
  }
}

std::string Sentence(const Hint& hint) {
  return SubsetSentence("naked", hint, " in other cells of that " + NameOf(hint.houses[0].kind));
}

}  // namespace

const Technique kNakedPair{"naked pair", Search<2>, Sentence, CaptionsOfFirstHouse};
const Technique kNakedTriple{"naked triple", Search<3>, Sentence, CaptionsOfFirstHouse};
const Technique kNakedQuad{"naked quad", Search<4>, Sentence, CaptionsOfFirstHouse};
const Technique kNakedQuint{"naked quint", Search<5>, Sentence, CaptionsOfFirstHouse};

}  // namespace tessel
