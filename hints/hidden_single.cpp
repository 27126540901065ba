// Hidden single: a house with one place for a digit. Digits come first, then rows, columns, cages.
#include "core/names.h"
#include "hints/ladder.h"
#include "hints/positions.h"
#include "hints/wording.h"

namespace tessel {

namespace {

Hint HintAt(const House& house, int cell, int digit) {
  return {.code = CodeFor(HintCode::kHiddenSingleRow, house.kind),
          .cell = cell,
          .digit = digit,
          .houses = {house},
          .cells = CellSet::Of(cell),
          .digits = BitOf(digit)};
}

void Search(const MarkedBoard& board, const HintVisitor& visit) {
  for (int digit = 1; digit <= kSide; ++digit) {
    for (const House& house : board.layout.AllHouses()) {
      const Positions places = PositionsWith(board.candidates, house.cells, BitOf(digit));
      if (SizeOf(places) != 1) continue;
      if (!visit(HintAt(house, house.cells[LowestOf(places)], digit))) return;
    }
  }
}

std::string Sentence(const Hint& hint) {
  return "Hidden single in " + NameOf(hint.houses[0].kind) + " at cell " + CellName(*hint.cell);
}

}  // namespace

const Technique kHiddenSingle{"hidden single", Search, Sentence, CaptionsOfCell};

}  // namespace tessel
