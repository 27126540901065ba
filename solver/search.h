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

  // A cell with two candidates; without one, a digit in the house that leaves it the fewest places.
  Choice Choose() {
    const Level& level = Top();
    const Lanes open = Lanes::Load(level.open);
    Lanes one = open - open;
    Lanes two = one;
    Lanes three = one;
    for (int digit = 0; digit < kDigits; ++digit) {
      const Lanes places = Lanes::Load(level.places[digit]);
      three = three | (two & places);
      two = two | (one & places);
      one = one | places;
    }
    Places pairs;
    (two - three).Store(pairs);
    const std::uint32_t rows = ~(two - three).Empty() & kRowLanes;
    if (rows != 0) return InCell(pairs, rows);
    return InHouse();
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

  Choice InHouse() {
    int fewest = kSide + 1;
    Choice choice{};
    for (int digit = 0; digit < kDigits; ++digit) {
      for (std::uint32_t left = kHouseLanes & ~Top().done[digit]; left != 0; left &= left - 1) {
        const int house = __builtin_ctz(left);
        const std::uint32_t places = Top().places[digit].lane[house];
        const int size = __builtin_popcount(places);
        if (size >= fewest) continue;
        fewest = size;
        choice = {tables_.cellAt[house][Draw(places)], static_cast<std::uint8_t>(digit)};
      }
    }
    return choice;
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
