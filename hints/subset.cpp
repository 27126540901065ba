#include "hints/subset.h"

#include <cassert>

#include "hints/ladder.h"
#include "hints/wording.h"

namespace tessel {

namespace {

constexpr std::array kSizeNames{"pair", "triple", "quad", "quint"};  // of 2 to 5 cells

const Technique* At(std::span<const Technique* const> fromPairsOn, int size) {
  const int index = size - 2;
  if (index < 0 || index >= static_cast<int>(fromPairsOn.size())) return nullptr;
  return fromPairsOn[static_cast<std::size_t>(index)];
}

}  // namespace

const Technique* SubsetTechnique(Subset family, int size) {
  static constexpr std::array kNaked{&kNakedPair, &kNakedTriple, &kNakedQuad, &kNakedQuint};
  static constexpr std::array kHidden{&kHiddenPair, &kHiddenTriple};
  return family == Subset::kNaked ? At(kNaked, size) : At(kHidden, size);
}

HouseContents ContentsOf(const MarkedBoard& board, const House& house) {
  HouseContents contents;
  int empty = 0;
  int placed = 0;
  for (int k = 0; k < kSide; ++k) {
    const int digit = board.digits[house.cells[k]];
    if (digit == 0) {
      empty |= 1 << k;
    } else {
      placed |= BitOf(digit);
    }
    contents.candidates[k] = board.candidates[house.cells[k]];
  }
  contents.empty = static_cast<Positions>(empty);
  contents.placed = static_cast<Mask>(placed);
  return contents;
}

std::string SubsetSentence(const char* family, const Hint& hint, const std::string& tail) {
  const int size = hint.cells.Count();
  assert(size >= 2 && size <= 5);
  return std::string("A ") + family + " " + kSizeNames[size - 2] + " is present in " +
         NameOf(hint.houses[0]) + " and leads to elimination" + tail;
}

}  // namespace tessel
