#include "grade/quick_position.h"

#include "grade/bits.h"

namespace tessel::grade {

QuickPosition::QuickPosition(const Layout& layout, const CandidateGrid& start)
    : layout_(layout), board_(start.digits), candidates_(start.candidates) {
  for (auto& cages : written_) cages.fill(-1);
  FollowCages();
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (board_[cell] == 0) {
      AddCandidates(cell);
    } else {
      written_[board_[cell] - 1][layout.CageOf(cell) - 1] = static_cast<std::int8_t>(cell);
    }
  }
  // At first any house can have a digit's only place.
  hiddenSingles_.fill((std::uint32_t{1} << 3 * kSide) - 1);
}

void QuickPosition::FollowCages() {
  for (const House& cage : layout_.HousesOf(HouseKind::kCage)) {
    for (int k = 0; k < kSide; ++k) {
      bitInCage_[cage.cells[k]] = static_cast<Mask>(1 << k);
      cages_[cage.index] = cages_[cage.index] | CellSet::Of(cage.cells[k]);
    }
  }
}

void QuickPosition::AddCandidates(int cell) {
  ++open_;
  if (IsSingle(candidates_[cell])) nakedSingles_ = nakedSingles_ | CellSet::Of(cell);
  ForEachBit(candidates_[cell], [&](int digit) {
    cells_[digit] = cells_[digit] | CellSet::Of(cell);
    ForEachSeat(cell, [&](int house, Mask bit) {
      places_[digit][house] = static_cast<Mask>(places_[digit][house] | bit);
    });
  });
}

void QuickPosition::TakeFromHouses(int cell, int digit) {
  cells_[digit] = cells_[digit] - CellSet::Of(cell);
  ForEachSeat(cell, [&](int house, Mask bit) {
    Mask& places = places_[digit][house];
    places = Without(places, bit);
    hiddenSingles_[digit] |= std::uint32_t{IsSingle(places)} << house;
  });
}

void QuickPosition::Remove(int cell, int digit) {
  candidates_[cell] = Without(candidates_[cell], static_cast<Mask>(1 << digit));
  if (IsSingle(candidates_[cell])) nakedSingles_ = nakedSingles_ | CellSet::Of(cell);
  TakeFromHouses(cell, digit);
}

void QuickPosition::Write(int cell, int digit) {
  const Mask candidates = candidates_[cell];
  board_[cell] = static_cast<std::uint8_t>(digit + 1);
  candidates_[cell] = 0;
  written_[digit][layout_.CageOf(cell) - 1] = static_cast<std::int8_t>(cell);
  --open_;
  ForEachBit(candidates, [&](int other) { TakeFromHouses(cell, other); });
  ForEach(cells_[digit] & layout_.PeersOf(cell), [&](int peer) { Remove(peer, digit); });
}

int QuickPosition::WriteNakedSingles() {
  const CellSet noted = nakedSingles_;
  nakedSingles_ = {};
  int written = 0;
  ForEach(noted, [&](int cell) {
    if (candidates_[cell] == 0) return;
    Write(cell, LowestBit(candidates_[cell]));
    ++written;
  });
  return written;
}

// All are found before the first is written: that would bring about singles of the next round.
int QuickPosition::WriteHiddenSingles() {
  std::array<CellSet, kSide> found{};
  for (int digit = 0; digit < kSide; ++digit) {
    ForEachBit(hiddenSingles_[digit], [&](int house) {
      const Mask places = places_[digit][house];
      if (!IsSingle(places)) return;
      const int cell = layout_.AllHouses()[house].cells[LowestBit(places)];
      found[digit] = found[digit] | CellSet::Of(cell);
    });
    hiddenSingles_[digit] = 0;
  }
  int written = 0;
  for (int digit = 0; digit < kSide; ++digit) {
    written += found[digit].Count();
    ForEach(found[digit], [&](int cell) { Write(cell, digit); });
  }
  return written;
}

void QuickPosition::Remove(const Removals& removals) {
  ForEach(removals.cells, [&](int cell) {
    const auto digits = static_cast<Mask>(removals.digits[cell] & candidates_[cell]);
    ForEachBit(digits, [&](int digit) { Remove(cell, digit); });
  });
}

}  // namespace tessel::grade
