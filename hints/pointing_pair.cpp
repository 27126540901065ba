// Pointing pair: cells outside a cage that share a row or column with every cell of the cage that
// holds a digit cannot hold it. Digits come first, then cages; the hint names the lowest cell.
#include "core/names.h"
#include "hints/ladder.h"
#include "hints/positions.h"
#include "hints/wording.h"

namespace tessel {

namespace {

// Each cell's row and column.
constexpr PerCell<CellSet> kLinesThrough = [] {
  PerCell<CellSet> lines;
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int k = 0; k < kSide; ++k) {
      const CellSet inRow = CellSet::Of(CellAt(RowOf(cell), k));
      const CellSet inColumn = CellSet::Of(CellAt(k, ColumnOf(cell)));
      lines[cell] = lines[cell] | inRow | inColumn;
    }
  }
  return lines;
}();

struct Pointing {
  CellSet from;  // the cells of the cage that hold the digit
  CellSet at;    // the cells outside that hold it and share a line with each of them
};

// `holders`: the cells of the board that hold the digit.
Pointing PointingOf(const House& cage, CellSet holders) {
  const CellSet inCage = CellsAt(cage, kAllPositions);
  const CellSet from = holders & inCage;
  if (from.Empty()) return {};
  CellSet at = holders - inCage;
  ForEach(from, [&at](int cell) { at = at & kLinesThrough[cell]; });
  return {from, at};
}

Hint HintAt(const House& cage, const Pointing& pointing, int digit) {
  Hint hint{.code = HintCode::kPointingPair,
            .cell = pointing.at.First(),
            .digit = digit,
            .houses = {cage},
            .cells = pointing.from,
            .digits = BitOf(digit)};
  ForEach(pointing.at, [&](int cell) { hint.eliminations.push_back({cell, BitOf(digit)}); });
  return hint;
}

void Search(const MarkedBoard& board, const HintVisitor& visit) {
  for (int digit = 1; digit <= kSide; ++digit) {
    const CellSet holders = CellsWith(board.candidates, digit);
    for (const House& cage : board.layout.HousesOf(HouseKind::kCage)) {
      const Pointing pointing = PointingOf(cage, holders);
      if (!pointing.at.Empty() && !visit(HintAt(cage, pointing, digit))) return;
    }
  }
}

std::string Sentence(const Hint& hint) {
  return "A candidate from cell " + CellName(*hint.cell) +
         " can be removed since it is pointed by some cells from a near cage all holding that "
         "candidate";
}

}  // namespace

const Technique kPointingPair{"pointing pair", Search, Sentence, CaptionsOfCell};

}  // namespace tessel
