// Hidden subsets: as many digits of a house as there are cells left for them, from which every
// other digit can go. Houses come first, then combinations of digits.
#include "hints/ladder.h"
#include "hints/subset.h"
#include "hints/wording.h"

namespace tessel {

namespace {

// The empty positions of the house that hold a digit of `digits`, when they are as many as those
// and one of them holds others, too; else none.
std::optional<Positions> UsefulPositions(const HouseContents& in, Mask digits, int size) {
  int meeting = 0;
  for (int k = 0; k < kSide; ++k) meeting |= (in.candidates[k] & digits) != 0 ? 1 << k : 0;
  const auto positions = static_cast<Positions>(meeting & in.empty);
  if (SizeOf(positions) != size) return std::nullopt;
  const auto hasMore = [&](int k) { return Without(in.candidates[k], digits) != 0; };
  if (!AnyOf(positions, hasMore)) return std::nullopt;
  return positions;
}

Hint HintAt(const House& house, const HouseContents& in, Positions positions, Mask digits) {
  return SubsetHint(HintCode::kHiddenSubsetRow, house, positions, digits, [&](int k) {
    return HasPosition(positions, k) ? Without(in.candidates[k], digits) : Mask{0};
  });
}

template <int size>
void Search(const MarkedBoard& board, const HintVisitor& visit) {
  for (const House& house : board.layout.AllHouses()) {
    const HouseContents in = ContentsOf(board, house);
    for (const Mask digits : CombinationsOf(size)) {
      if ((digits & in.placed) != 0) continue;
      const auto positions = UsefulPositions(in, digits, size);
      if (positions && !visit(HintAt(house, in, *positions, digits))) return;
    }
  }
}

// Deliberate: the same ending in every house, where a naked subset names the kind of its house.
std::string Sentence(const Hint& hint) {
  return SubsetSentence("hidden", hint, " of candidates");
}

}  // namespace

const Technique kHiddenPair{"hidden pair", Search<2>, Sentence, CaptionsOfFirstHouse};
const Technique kHiddenTriple{"hidden triple", Search<3>, Sentence, CaptionsOfFirstHouse};

}  // namespace tessel
