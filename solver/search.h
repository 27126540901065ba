// The search: try a choice, see what follows, take it back.
#pragma once

#include "solver/propagation.h"

namespace tessel::solver {

template <typename Lanes>
[[gnu::always_inline]] inline void CopyLevel(const Level& from, Level& to) {
  for (int digit = 0; digit < kDigits; ++digit) {
    Lanes::Load(from.places[digit]).Store(to.places[digit]);
    to.done[digit] = from.done[digit];
  }
  Lanes::Load(from.open).Store(to.open);
}

template <typename Lanes>
class Search {
 public:
  Search(const Tables& tables, Workspace& work, const Request& request)
      : tables_(tables), work_(work), request_(request) {}

  [[gnu::flatten]] Result Run() {
    while (true) {
      switch (Propagation<Lanes>(tables_, work_, Top()).Run()) {
        case Standing::kOpen:
          if (result_.nodes == request_.nodes) return result_;
          Descend(Choose());
          continue;
        case Standing::kSolved:
          Record();
          break;
        case Standing::kContradiction:
          break;
      }
      result_.complete = result_.solutions == request_.solutions || depth_ == 0;
      if (result_.complete) return result_;
      Ascend();
    }
  }

 private:
  Level& Top() { return work_.levels[depth_]; }

  void Record() {
    __builtin_memcpy(work_.found[result_.solutions++], work_.digits, sizeof work_.digits);
  }

  void Descend(Choice choice) {
    ++result_.nodes;
    const Level& before = Top();
    work_.choices[depth_++] = choice;
    CopyLevel<Lanes>(before, Top());
    Fill<Lanes>(tables_, Top(), choice.cell, choice.digit);
    work_.digits[choice.cell] = static_cast<std::uint8_t>(choice.digit + 1);
  }

  // What was tried has no more solutions: its digit cannot stand there.
  void Ascend() {
    const auto [cell, digit] = work_.choices[--depth_];
    Places& places = Top().places[digit];
    (Lanes::Load(places) - Lanes::Load(tables_.only[cell])).Store(places);
  }

  // A cell with the fewest candidates, or a house with two places for a digit if cells have more.
  Choice Choose() {
    const Lanes open = Lanes::Load(Top().open);
    const Lanes none = open - open;
    Lanes ones = none, twos = none, fours = none, eights = none;  // the digits of the counts
    for (const Places& of : Top().places) {
      const Lanes places = Lanes::Load(of);
      const Lanes carry = ones & places;
      ones = ones ^ places;
      const Lanes carry2 = twos & carry;
      twos = twos ^ carry;
      eights = eights | (fours & carry2);
      fours = fours ^ carry2;
    }
    if ((open - (fours | eights | (ones & twos))).Empty() != ~0U) {
      return InCell(open - (fours | eights | (ones & twos)));
    }
    for (int digit = 0; digit < kDigits; ++digit) {
      const std::uint32_t houses =
          Lanes::Load(Top().places[digit]).AtMostTwo() & kHouseLanes & ~Top().done[digit];
      if (houses != 0) return InHouse(digit, houses);
    }
    Lanes fewest = open;
    for (const Lanes& bits : {eights, fours, twos, ones}) {
      const Lanes fewer = fewest - bits;
      if (fewer.Empty() != ~0U) fewest = fewer;
    }
    return InCell(fewest);
  }

  Choice InCell(const Lanes& chosen) {
    Places cells;
    chosen.Store(cells);
    return InCell(cells, ~chosen.Empty() & kRowLanes);
  }

  Choice InCell(const Places& cells, std::uint32_t rows) {
    const int row = Draw(rows);
    const int column = Draw(cells.lane[row]);
    std::uint32_t digits = 0;
    for (int digit = 0; digit < kDigits; ++digit) {
      digits |= (Top().places[digit].lane[row] >> column & 1U) << digit;
    }
    return {tables_.cellAt[row][column], static_cast<std::uint8_t>(Draw(digits))};
  }

  Choice InHouse(int digit, std::uint32_t houses) {
    const int house = Draw(houses);
    const int cell = tables_.cellAt[house][Draw(Top().places[digit].lane[house])];
    return {static_cast<std::uint8_t>(cell), static_cast<std::uint8_t>(digit)};
  }

  // The number of one of the bits.
  int Draw(std::uint32_t bits) {
    if (request_.random != nullptr) {
      for (auto skip = request_.random->Below(static_cast<unsigned>(__builtin_popcount(bits)));
           skip != 0; --skip) {
        bits &= bits - 1;
      }
    }
    return __builtin_ctz(bits);
  }

  const Tables& tables_;
  Workspace& work_;
  const Request& request_;
  Result result_;
  int depth_ = 0;
};

}  // namespace tessel::solver
