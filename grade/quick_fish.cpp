// X-Wing and SwordFish: `size` lines with the same `size` places.
#include "grade/bits.h"
#include "grade/quick_steps.h"

namespace tessel::grade {

namespace {

// The lines among nine, from house `first` on, with exactly these places, or with some of them.
struct LinesWith {
  Mask exactly = 0;
  Mask some = 0;
};

LinesWith FindLines(const QuickPosition& position, int first, int digit, Mask places) {
  LinesWith lines;
  for (int line = 0; line < kSide; ++line) {
    const Mask ofLine = position.PlacesIn(first + line, digit);
    lines.exactly = static_cast<Mask>(lines.exactly | (ofLine == places ? 1 : 0) << line);
    lines.some = static_cast<Mask>(lines.some | ((ofLine & places) != 0 ? 1 : 0) << line);
  }
  return lines;
}

// A fish is found at its lowest line.
void AddFishOf(Removals& removals, const QuickPosition& position, int first, int line, int digit,
               int size) {
  const Mask places = position.PlacesIn(first + line, digit);
  if (CountOf(places) != size) return;
  const LinesWith lines = FindLines(position, first, digit, places);
  if (CountOf(lines.exactly) != size || LowestBit(lines.exactly) != line) return;
  const Mask losing = Without(lines.some, lines.exactly);
  removals.steps += losing != 0 ? 1 : 0;
  ForEachBit(losing, [&](int other) {
    const HouseCells& cells = position.Shape().AllHouses()[first + other].cells;
    ForEachBit(static_cast<Mask>(position.PlacesIn(first + other, digit) & places),
               [&](int k) { removals.Add(cells[k], static_cast<Mask>(1 << digit)); });
  });
}

}  // namespace

Removals QuickFish(int size, const QuickPosition& position) {
  Removals removals;
  for (const int first : {0, kSide}) {
    for (int line = 0; line < kSide; ++line) {
      for (int digit = 0; digit < kSide; ++digit) {
        AddFishOf(removals, position, first, line, digit, size);
      }
    }
  }
  return removals;
}

}  // namespace tessel::grade
