// Naked single: a cell with one candidate. The lowest cell comes first.
#include "core/names.h"
#include "hints/ladder.h"
#include "hints/positions.h"
#include "hints/wording.h"

namespace tessel {

namespace {

void Search(const MarkedBoard& board, const HintVisitor& visit) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Mask candidates = board.candidates[cell];
    if (SizeOf(candidates) != 1) continue;
    const bool goOn = visit({.code = HintCode::kNakedSingle,
                             .cell = cell,
                             .digit = LowestDigitOf(candidates),
                             .cells = CellSet::Of(cell),
                             .digits = candidates});
    if (!goOn) return;
  }
}

std::string Sentence(const Hint& hint) {
  return "Naked single at cell " + CellName(*hint.cell);
}

}  // namespace

const Technique kNakedSingle{"naked single", Search, Sentence, CaptionsOfCell};

}  // namespace tessel
