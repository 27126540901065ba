// X-Wing and SwordFish: two or three lines that hold a digit at the same places, so that it can go
// from the lines that cross them there. All digits on rows come first, then all digits on columns.
#include "hints/ladder.h"
#include "hints/positions.h"
#include "hints/wording.h"

namespace tessel {

namespace {

// Where each of nine parallel lines holds a digit.
struct DigitInLines {
  int digit = 0;
  std::span<const House, kSide> lines;
  std::array<Positions, kSide> places{};
};

DigitInLines Locate(int digit, std::span<const House, kSide> lines, const MaskBoard& candidates) {
  DigitInLines located{digit, lines, {}};
  for (const House& line : lines) {
    located.places[line.index] = PositionsWith(candidates, line.cells, BitOf(digit));
  }
  return located;
}

// Deliberate: the strict form only. Every line of the fish holds the digit in exactly the same
// `size` places, for three lines too.
bool IsUsefulFish(const DigitInLines& in, Positions chosen, int size) {
  const Positions places = in.places[LowestOf(chosen)];
  const auto differs = [&](int line) { return in.places[line] != places; };
  const auto meets = [&](int line) { return (in.places[line] & places) != 0; };
  return SizeOf(places) == size && !AnyOf(chosen, differs) &&
         AnyOf(Without(kAllPositions, chosen), meets);
}

Hint HintAt(const DigitInLines& in, Positions chosen, HintCode inRows) {
  Hint hint{
      .code = CodeFor(inRows, in.lines[0].kind), .digit = in.digit, .digits = BitOf(in.digit)};
  const Positions places = in.places[LowestOf(chosen)];
  CellSet crossed;
  for (const House& line : in.lines) {
    const CellSet meeting = CellsAt(line, static_cast<Positions>(in.places[line.index] & places));
    if (HasPosition(chosen, line.index)) {
      hint.houses.push_back(line);
      hint.cells = hint.cells | meeting;
    } else {
      crossed = crossed | meeting;
    }
  }
  ForEach(crossed, [&](int cell) { hint.eliminations.push_back({cell, BitOf(in.digit)}); });
  return hint;
}

template <int size, HintCode inRows>
void Search(const MarkedBoard& board, const HintVisitor& visit) {
  for (const HouseKind kind : {HouseKind::kRow, HouseKind::kColumn}) {
    for (int digit = 1; digit <= kSide; ++digit) {
      const DigitInLines in = Locate(digit, board.layout.HousesOf(kind), board.candidates);
      for (const Positions chosen : CombinationsOf(size)) {
        if (IsUsefulFish(in, chosen, size) && !visit(HintAt(in, chosen, inRows))) return;
      }
    }
  }
}

// Deliberate: "a SwordFish" in rows, "an SwordFish" in columns.
const char* NameOfFish(HintCode code) {
  if (code == HintCode::kSwordFishRows) return "a SwordFish";
  if (code == HintCode::kSwordFishColumns) return "an SwordFish";
  return "an X-Wing";
}

std::string Sentence(const Hint& hint) {
  const bool inRows = hint.houses[0].kind == HouseKind::kRow;
  return "Candidate " + std::to_string(*hint.digit) + " forms " + NameOfFish(hint.code) +
         " pattern in " + NamesOf(hint.houses) + ". Elimination(s) can be done in the crossing " +
         (inRows ? "columns" : "rows");
}

Captions CaptionsOfLines(const Hint& hint) {
  Captions all;
  for (const House& line : hint.houses) {
    const Captions one = CaptionsOf(line);
    all.rows = static_cast<Mask>(all.rows | one.rows);
    all.columns = static_cast<Mask>(all.columns | one.columns);
  }
  return all;
}

}  // namespace

const Technique kXWing{"X-Wing", Search<2, HintCode::kXWingRows>, Sentence, CaptionsOfLines};
const Technique kSwordFish{"SwordFish", Search<3, HintCode::kSwordFishRows>, Sentence,
                           CaptionsOfLines};

}  // namespace tessel
