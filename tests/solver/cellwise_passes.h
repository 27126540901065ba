// The passes of the fast search written out cell by cell: the same conclusions in any order.
#pragma once

#include <algorithm>
#include <array>
#include <bit>

#include "core/layout.h"
#include "solver/kernel.h"

namespace tessel::solver {

// Candidates of the empty cells; 0 for cells that are filled, or have none.
struct Position {
  PerCell<int> candidates{};
  PerCell<bool> filled{};

  friend bool operator==(const Position&, const Position&) = default;
};

// The passes written out. Every function tells whether it has changed anything.
class Twin {
 public:
  Twin(const Layout& layout, Position& position) : layout_(layout), position_(position) {}

  Standing PlaceSingles() {
    while (!Contradicts()) {
      if (PlaceNaked() || PlaceHidden()) continue;
      return std::ranges::count(position_.filled, false) == 0 ? Standing::kSolved : Standing::kOpen;
    }
    return Standing::kContradiction;
  }

  bool RemoveLocked() {
    bool removed = false;
    for (const House& cage : layout_.HousesOf(HouseKind::kCage)) {
      for (const HouseKind kind : {HouseKind::kRow, HouseKind::kColumn}) {
        for (const House& line : layout_.HousesOf(kind)) {
          if (SharedCells(cage, line) < 2) continue;
          for (int digit = 1; digit <= kSide; ++digit) {
            removed |= RemoveOutside(cage, line, digit) || RemoveOutside(line, cage, digit);
          }
        }
      }
    }
    return removed;
  }

  void Place(int cell, int digit) {
    position_.filled[cell] = true;
    position_.candidates[cell] = 0;
    for (const House& house : layout_.AllHouses()) {
      if (!Holds(house, cell)) continue;
      placed_[NumberOf(house)] |= 1 << digit;
      for (const int peer : house.cells) position_.candidates[peer] &= ~BitOf(digit);
    }
  }

 private:
  bool May(int cell, int digit) const {
    return !position_.filled[cell] && (position_.candidates[cell] & BitOf(digit)) != 0;
  }
  bool IsPlacedIn(const House& house, int digit) const {
    return placed_[NumberOf(house)] >> digit & 1;
  }
  static std::size_t NumberOf(const House& house) {
    return static_cast<std::size_t>(house.kind) * kSide + static_cast<std::size_t>(house.index);
  }
  static bool Holds(const House& house, int cell) {
    return std::ranges::find(house.cells, cell) != house.cells.end();
  }
  static std::ptrdiff_t SharedCells(const House& a, const House& b) {
    return std::ranges::count_if(a.cells, [&](int cell) { return Holds(b, cell); });
  }
  std::ptrdiff_t PlacesIn(const House& house, int digit) const {
    return std::ranges::count_if(house.cells, [&](int cell) { return May(cell, digit); });
  }

  bool Contradicts() const {
    for (int cell = 0; cell < kCellCount; ++cell) {
      if (!position_.filled[cell] && position_.candidates[cell] == 0) return true;
    }
    for (const House& house : layout_.AllHouses()) {
      for (int digit = 1; digit <= kSide; ++digit) {
        if (!IsPlacedIn(house, digit) && PlacesIn(house, digit) == 0) return true;
      }
    }
    return false;
  }

  bool PlaceNaked() {
    for (int cell = 0; cell < kCellCount; ++cell) {
      const int candidates = position_.candidates[cell];
      if (position_.filled[cell] || std::popcount(static_cast<unsigned>(candidates)) != 1) continue;
      Place(cell, LowestDigitOf(static_cast<Mask>(candidates)));
      return true;
    }
    return false;
  }

  bool PlaceHidden() {
    for (const House& house : layout_.AllHouses()) {
      for (int digit = 1; digit <= kSide; ++digit) {
        if (PlacesIn(house, digit) != 1) continue;
        Place(*std::ranges::find_if(house.cells, [&](int cell) { return May(cell, digit); }),
              digit);
        return true;
      }
    }
    return false;
  }

  bool RemoveOutside(const House& confined, const House& other, int digit) {
    bool removed = false;
    if (PlacesIn(confined, digit) == 0) return false;
    for (const int cell : confined.cells) {
      if (May(cell, digit) && !Holds(other, cell)) return false;
    }
    for (const int cell : other.cells) {
      if (!May(cell, digit) || Holds(confined, cell)) continue;
      position_.candidates[cell] &= ~BitOf(digit);
      removed = true;
    }
    return removed;
  }

  const Layout& layout_;
  Position& position_;
  std::array<int, 27> placed_{};  // for each house, bit d: digit d stands in it
};

}  // namespace tessel::solver
