// Pointing, claiming and the Law of Leftovers.
#include "grade/bits.h"
#include "grade/quick_steps.h"

namespace tessel::grade {

namespace {

constexpr PerCell<CellSet> kLinesThrough = [] {
  PerCell<CellSet> lines;
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int k = 0; k < kSide; ++k) {
      lines[cell] = lines[cell] | CellSet::Of(CellAt(RowOf(cell), k)) |
                    CellSet::Of(CellAt(k, ColumnOf(cell)));
    }
  }
  return lines;
}();

const HouseCells& CellsOf(const QuickPosition& position, int cage) {
  return position.Shape().AllHouses()[2 * kSide + cage].cells;
}

Mask PlacesInCage(const QuickPosition& position, int cage, int digit) {
  return position.PlacesIn(2 * kSide + cage, digit);
}

// The cells outside a cage that lose the digit because they see all its places in the cage.
CellSet PointedAt(const QuickPosition& position, int cage, int digit) {
  CellSet seen = position.CandidatesOf(digit) - position.CellsOfCage(cage);
  const HouseCells& cells = CellsOf(position, cage);
  Mask places = PlacesInCage(position, cage, digit);
  if (places == 0) return {};
  for (; places != 0 && !seen.Empty(); places &= static_cast<Mask>(places - 1)) {
    seen = seen & kLinesThrough[cells[LowestBit(places)]];
  }
  return seen;
}

// The rows, or the columns, of one digit's places in each cage.
using LinesByCage = std::array<Mask, kSide>;

int LineOf(int cell, bool rows) {
  return rows ? RowOf(cell) : ColumnOf(cell);
}

LinesByCage LinesOf(const QuickPosition& position, int digit, bool rows) {
  LinesByCage lines{};
  for (int cage = 0; cage < kSide; ++cage) {
    const auto add = [&](int cell) {
      lines[cage] = static_cast<Mask>(lines[cage] | 1 << LineOf(cell, rows));
    };
    if (const int cell = position.WrittenAt(cage, digit); cell >= 0) add(cell);
    ForEachBit(PlacesInCage(position, cage, digit),
               [&](int k) { add(CellsOf(position, cage)[k]); });
  }
  return lines;
}

// Calls `search` with the digit, the direction and the lines of the cages, for all of them.
template <typename Search>
void ForEachDigitAndDirection(const QuickPosition& position, const Search& search) {
  for (int digit = 0; digit < kSide; ++digit) {
    if (position.CandidatesOf(digit).Empty()) continue;
    for (const bool rows : {true, false}) search(digit, rows, LinesOf(position, digit, rows));
  }
}

// Takes the digit from the places of the cage in these lines.
void TakeFromCage(Removals& removals, const QuickPosition& position, int cage, int digit, bool rows,
                  Mask lines) {
  ForEachBit(PlacesInCage(position, cage, digit), [&](int k) {
    const int cell = CellsOf(position, cage)[k];
    if ((lines >> LineOf(cell, rows) & 1) == 0) return;
    removals.Add(cell, static_cast<Mask>(1 << digit));
  });
}

// The lines whose places for the digit all lie in one cage.
Mask LinesOfOneCage(const LinesByCage& lines) {
  int once = 0;
  int more = 0;
  for (const Mask ofCage : lines) {
    more |= once & ofCage;
    once |= ofCage;
  }
  return static_cast<Mask>(once & ~more);
}

// The digit is placed once in each of the band's lines, each time in another cage; so it touches at
// least as many cages there as there are lines. Only where it touches no more can these cages be
// the chosen ones of the plain search, and the choice need not be tried. In the same way at most as
// many cages can have all their places in the band.
void AddLeftoversOfBand(Removals& removals, const QuickPosition& position, int digit, bool rows,
                        const LinesByCage& lines, Mask band) {
  const auto cagesWith = [&](const auto& holds) {
    int cages = 0;
    for (int cage = 0; cage < kSide; ++cage) cages |= (holds(lines[cage]) ? 1 : 0) << cage;
    return static_cast<Mask>(cages);
  };
  const Mask touched = cagesWith([&](Mask ofCage) { return (ofCage & band) != 0; });
  const Mask reaching = cagesWith([&](Mask ofCage) { return Without(ofCage, band) != 0; });
  const auto takeFrom = [&](Mask cages, Mask lost) {
    if (cages == 0) return;
    ++removals.steps;
    ForEachBit(cages, [&](int cage) { TakeFromCage(removals, position, cage, digit, rows, lost); });
  };
  const Mask crossing = touched & reaching;
  if (CountOf(touched) == CountOf(band)) takeFrom(crossing, Without(kAllCandidates, band));
  if (kSide - CountOf(reaching) == CountOf(band)) takeFrom(crossing, band);
}

}  // namespace

Removals QuickPointing(const QuickPosition& position) {
  Removals removals;
  for (int digit = 0; digit < kSide; ++digit) {
    for (int cage = 0; cage < kSide; ++cage) {
      const CellSet pointed = PointedAt(position, cage, digit);
      if (!pointed.Empty()) ++removals.steps;
      ForEach(pointed, [&](int cell) { removals.Add(cell, static_cast<Mask>(1 << digit)); });
    }
  }
  return removals;
}

Removals QuickClaiming(const QuickPosition& position) {
  Removals removals;
  ForEachDigitAndDirection(position, [&](int digit, bool rows, const LinesByCage& lines) {
    const Mask claimed = LinesOfOneCage(lines);
    for (int cage = 0; cage < kSide; ++cage) {
      if (IsSingle(lines[cage])) continue;
      ForEachBit(static_cast<Mask>(claimed & lines[cage]), [&](int line) {
        ++removals.steps;
        const Mask others = Without(kAllCandidates, static_cast<Mask>(1 << line));
        TakeFromCage(removals, position, cage, digit, rows, others);
      });
    }
  });
  return removals;
}

Removals QuickLeftovers(int lines, const QuickPosition& position) {
  Removals removals;
  const auto search = [&](int digit, bool rows, const LinesByCage& byCage) {
    for (int first = 0; first + lines <= kSide; ++first) {
      const auto band = static_cast<Mask>(((1 << lines) - 1) << first);
      AddLeftoversOfBand(removals, position, digit, rows, byCage, band);
    }
  };
  ForEachDigitAndDirection(position, search);
  return removals;
}

}  // namespace tessel::grade
