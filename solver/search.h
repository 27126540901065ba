// The search: a choice is tried, what follows is placed, and dead ends are taken back.
#pragma once

#include "solver/propagation.h"

namespace tessel::solver {

template <typename Lanes>
class Search {
 public:
  Search(const Tables& tables, Workspace& work, const Request& request)
      : tables_(tables), work_(work), request_(request) {}

  [[gnu::flatten]] Result Run() {
    while (true) {
      const Standing standing = Propagate<Lanes>(tables_, work_, Top());
      if (standing == Standing::kOpen) {
        if (result_.nodes == request_.nodes) return result_;
        Descend(Choose());
        continue;
      }
      if (standing == Standing::kSolved) Record();
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
    if (request_.failures != nullptr) ++request_.failures[cell];
    Places& places = Top().places[digit];
    (Lanes::Load(places) - Lanes::Load(tables_.only[cell])).Store(places);
  }

  // A cell with two candidates; without one, a house with two places for a digit; without either, a
  // cell with as few candidates as any.
  Choice Choose() {
    if (request_.failures != nullptr) return InMostFailing();
    const Counts counts = CountCandidates();
    const Lanes open = Lanes::Load(Top().open);
    const Lanes pairs = open - (counts.eights | counts.fours | (counts.ones & counts.twos));
    if (pairs.Empty() != kNoLane) return InCell(pairs);
    for (int digit = 0; digit < kDigits; ++digit) {
      const std::uint32_t houses =
          Lanes::Load(Top().places[digit]).AtMostTwo() & kHouseLanes & ~Top().done[digit];
      if (houses != 0) return InHouse(digit, houses);
    }
    Lanes fewest = open;
    for (const Lanes& bits : {counts.eights, counts.fours, counts.twos, counts.ones}) {
      const Lanes fewer = fewest - bits;
      if (fewer.Empty() != kNoLane) fewest = fewer;
    }
    return InCell(fewest);
  }

  // The open cell with the most failures for each of its candidates.
  Choice InMostFailing() {
    int best = 0;
    std::uint64_t bestCount = 1;
    std::uint64_t bestFailures = 0;
    for (int cell = 0; cell < kCellCount; ++cell) {
      const std::uint32_t candidates = CandidatesAt(Top(), RowOf(cell), ColumnOf(cell));
      if (candidates == 0) continue;
      const auto count = static_cast<std::uint64_t>(__builtin_popcount(candidates));
      const std::uint64_t failures = request_.failures[cell];
      if (failures * bestCount <= bestFailures * count) continue;
      best = cell;
      bestCount = count;
      bestFailures = failures;
    }
    const int digit = Draw(CandidatesAt(Top(), RowOf(best), ColumnOf(best)));
    return {static_cast<std::uint8_t>(best), static_cast<std::uint8_t>(digit)};
  }

  // The number of candidates of every cell in binary: a counter of four bits for each bit of the
  // lanes, into which the nine digits are added.
  struct Counts {
    Lanes ones, twos, fours, eights;
  };
  [[gnu::always_inline]] Counts CountCandidates() {
    const Lanes none = Lanes::Load(Top().open) - Lanes::Load(Top().open);
    Counts counts{none, none, none, none};
    for (const Places& of : Top().places) {
      const Lanes places = Lanes::Load(of);
      const Lanes toTwos = counts.ones & places;
      const Lanes toFours = counts.twos & toTwos;
      counts.ones = counts.ones ^ places;
      counts.twos = counts.twos ^ toTwos;
      counts.eights = counts.eights | (counts.fours & toFours);
      counts.fours = counts.fours ^ toFours;
    }
    return counts;
  }

  Choice InCell(const Lanes& cells) {
    Places chosen;
    cells.Store(chosen);
    const int row = Draw(~cells.Empty() & kRowLanes);
    const int column = Draw(chosen.lane[row]);
    const int digit = Draw(CandidatesAt(Top(), row, column));
    return {static_cast<std::uint8_t>(CellAt(row, column)), static_cast<std::uint8_t>(digit)};
  }

  Choice InHouse(int digit, std::uint32_t houses) {
    const int house = Draw(houses);
    const int cell = tables_.cellAt[house][Draw(Top().places[digit].lane[house])];
    return {static_cast<std::uint8_t>(cell), static_cast<std::uint8_t>(digit)};
  }

  // The number of a bit: the lowest, or one at random.
  int Draw(std::uint32_t bits) {
    if (request_.random != nullptr) {
      const auto count = static_cast<unsigned>(__builtin_popcount(bits));
      for (auto skipped = request_.random->Below(count); skipped > 0; --skipped) bits &= bits - 1;
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
