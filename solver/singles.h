// Naked and hidden singles: found for the whole board at once, placed one after the other.
#pragma once

#include "solver/level.h"

namespace tessel::solver {

// Every digit is compared with its neighbours in `lanes & (lanes - 1)`: what is left of a lane with
// one bit is nothing. Nothing is left of an empty lane either, so a house without a place for a
// digit is found among its hidden singles.
struct Singles {
  bool emptyCell = false;         // a cell has no candidate
  std::uint32_t digits = 0;       // bit d: digit d has houses with one place at most
  std::uint32_t hidden[kDigits];  // for each digit: these
  std::uint32_t nakedRows = 0;    // the rows with naked singles
  Places naked;                   // the cells with one candidate

  // Whether there is one to place, or a house without a place to find.
  bool Any() const { return digits != 0 || nakedRows != 0; }
};

// Takes the filled cells out of every digit's places, and looks at every house and cell.
template <typename Lanes>
[[gnu::always_inline]] inline Singles FindSingles(Level& level) {
  Singles singles;
  const Lanes open = Lanes::Load(level.open);
  Lanes some = open - open;  // the cells with one candidate or more, of the digits so far
  Lanes several = some;      // with two or more
  for (int digit = 0; digit < kDigits; ++digit) {
    const Lanes places = Lanes::Load(level.places[digit]) & open;
    places.Store(level.places[digit]);
    singles.hidden[digit] = places.AtMostOne() & kHouseLanes & ~level.done[digit];
    singles.digits |= std::uint32_t{singles.hidden[digit] != 0} << digit;
    several = several | (some & places);
    some = some | places;
  }
  const Lanes naked = open - several;
  naked.Store(singles.naked);
  singles.nakedRows = ~naked.Empty() & kRowLanes;
  singles.emptyCell = (open - some).Empty() != kNoLane;
  return singles;
}

// Places singles that were found together.
//
// A hidden single's cell is read from the places as they were found, not from what the placement
// before it has left: so none waits for another's store. Whether they exclude each other is
// asked of a few scalar bits.
template <typename Lanes>
class SinglesPlacement {
 public:
  SinglesPlacement(const Tables& tables, Level& level, std::uint8_t* digits)
      : tables_(tables), level_(level), digits_(digits), open_(Lanes::Load(level.open)) {}

  // False when a house has no place left for a digit, or singles exclude each other.
  [[gnu::always_inline]] bool Run(const Singles& singles) {
    for (std::uint32_t left = singles.digits; left != 0; left &= left - 1) {
      const int digit = __builtin_ctz(left);
      if (!PlaceHidden(digit, singles.hidden[digit])) return false;
    }
    for (std::uint32_t left = singles.nakedRows; left != 0; left &= left - 1) {
      const int row = __builtin_ctz(left);
      if (!PlaceNaked(row, singles.naked.lane[row])) return false;
    }
    open_.Store(level_.open);
    return true;
  }

 private:
  // `houses`: in which the digit has one place at most. A placement settles three of them at most.
  [[gnu::always_inline]] bool PlaceHidden(int digit, std::uint32_t houses) {
    const Places& found = level_.places[digit];
    Lanes places = Lanes::Load(found);
    std::uint32_t done = level_.done[digit];
    while (houses != 0) {
      const int house = __builtin_ctz(houses);
      if (found.lane[house] == 0) return false;
      const int cell = tables_.cellAt[house][__builtin_ctz(found.lane[house])];
      if ((done & tables_.housesOf[cell]) != 0 || IsFilled(cell)) return false;
      done |= tables_.housesOf[cell];
      houses &= ~done;
      places = places - Lanes::Load(tables_.withPeers[cell]);
      Fill(cell, digit);
    }
    places.Store(level_.places[digit]);
    level_.done[digit] = done;
    return true;
  }

  // `columns`: of the cells in the row that had one candidate. Some may be filled by now.
  [[gnu::always_inline]] bool PlaceNaked(int row, unsigned columns) {
    for (; columns != 0; columns &= columns - 1) {
      const int column = __builtin_ctz(columns);
      const int cell = CellAt(row, column);
      if (IsFilled(cell)) continue;
      const std::uint32_t candidates = CandidatesAt(level_, row, column);
      if (candidates == 0) return false;
      const int digit = __builtin_ctz(candidates);
      Places& places = level_.places[digit];
      (Lanes::Load(places) - Lanes::Load(tables_.withPeers[cell])).Store(places);
      level_.done[digit] |= tables_.housesOf[cell];
      Fill(cell, digit);
    }
    return true;
  }

  bool IsFilled(int cell) const { return (filled_[cell / 64] >> cell % 64 & 1U) != 0; }

  [[gnu::always_inline]] void Fill(int cell, int digit) {
    filled_[cell / 64] |= std::uint64_t{1} << cell % 64;
    open_ = open_ - Lanes::Load(tables_.only[cell]);
    digits_[cell] = static_cast<std::uint8_t>(digit + 1);
  }

  const Tables& tables_;
  Level& level_;
  std::uint8_t* digits_;
  Lanes open_;
  std::uint64_t filled_[2] = {0, 0};  // the cells that this placement has filled
};

}  // namespace tessel::solver
