// Box-line: the cells of a line that hold a digit all lie in one cage, which holds it outside the
// line, too. All digits on rows come first, then all digits on columns.
#include "hints/ladder.h"
#include "hints/positions.h"
#include "hints/wording.h"

namespace tessel {

namespace {

// The cage 1..9 that all the line's cells at `places` lie in.
std::optional<int> CommonCage(const Layout& layout, const House& line, Positions places) {
  if (places == 0) return std::nullopt;
  const int cage = layout.CageOf(line.cells[LowestOf(places)]);
  const auto elsewhere = [&](int k) { return layout.CageOf(line.cells[k]) != cage; };
  if (AnyOf(places, elsewhere)) return std::nullopt;
  return cage;
}

// None unless the cage holds the digit outside the line as well.
std::optional<Hint> HintAt(const MarkedBoard& board, const House& line, int digit) {
  const Positions places = PositionsWith(board.candidates, line.cells, BitOf(digit));
  const auto cageNumber = CommonCage(board.layout, line, places);
  if (!cageNumber) return std::nullopt;
  const House& cage = board.layout.HousesOf(HouseKind::kCage)[*cageNumber - 1];
  Hint hint{.code = CodeFor(HintCode::kBoxLineRow, line.kind),
            .digit = digit,
            .houses = {line, cage},
            .cells = CellsAt(line, places),
            .digits = BitOf(digit)};
  for (const int cell : cage.cells) {
    const bool holds = Holds(board.candidates[cell], digit);
    if (holds && !hint.cells.Contains(cell)) hint.eliminations.push_back({cell, BitOf(digit)});
  }
  if (hint.eliminations.empty()) return std::nullopt;
  return hint;
}

void Search(const MarkedBoard& board, const HintVisitor& visit) {
  for (const HouseKind kind : {HouseKind::kRow, HouseKind::kColumn}) {
    for (int digit = 1; digit <= kSide; ++digit) {
      for (const House& line : board.layout.HousesOf(kind)) {
        auto hint = HintAt(board, line, digit);
        if (hint && !visit(*std::move(hint))) return;
      }
    }
  }
}

std::string Sentence(const Hint& hint) {
  return "The cells in " + NameOf(hint.houses[0]) + " containing candidate " +
         std::to_string(*hint.digit) +
         " all belong to the same cage, therefore that candidate can be removed from the other "
         "cells of that cage";
}

}  // namespace

const Technique kBoxLine{"box-line", Search, Sentence, CaptionsOfFirstHouse};

}  // namespace tessel
