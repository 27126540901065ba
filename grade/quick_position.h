// A position that is kept for speed: the twin of CandidateGrid, with all that a round asks of it.
//
// The plain way looks at the whole board again for every kind of step in every round. Here every
// candidate is written down four times: in its cell, as a place in its row, column and cage. Taking
// it away updates all four, and notes in passing that its cell is left with one candidate, or a
// house with one place for the digit. Singles, nine steps in ten, are thus never searched for; the
// other kinds find the places of a digit in a house, and the candidates of a cell, as one number.
// The tests compare the two ways on whole puzzles; bench_grade tells their ratio.
#pragma once

#include <array>
#include <cstdint>

#include "core/cell_set.h"
#include "grade/candidate_grid.h"

namespace tessel::grade {

// What one kind of step removes from a position.
struct Removals {
  int steps = 0;
  CellSet cells;                          // that lose something
  std::array<Mask, kCellCount> digits{};  // what each cell loses

  // `removed`: digits that can go from the cell.
  void Add(int cell, Mask removed) {
    cells = cells | CellSet::Of(cell);
    digits[cell] = static_cast<Mask>(digits[cell] | removed);
  }
};

class QuickPosition {
 public:
  // `layout` must outlive the position.
  QuickPosition(const Layout& layout, const CandidateGrid& start);

  // Whether every cell is filled.
  bool Solved() const { return open_ == 0; }
  // The same position in plain form.
  CandidateGrid Value() const { return {board_, candidates_}; }

  // Write every single of the position and return how many there are.
  int WriteNakedSingles();
  int WriteHiddenSingles();
  // Takes the removals out of the position.
  void Remove(const Removals& removals);

  const Layout& Shape() const { return layout_; }
  // Of a cell 0..80; none in a filled one.
  Mask CandidatesAt(int cell) const { return candidates_[cell]; }
  // The cells that have the digit as a candidate. Digits are 0..8 from here on.
  CellSet CandidatesOf(int digit) const { return cells_[digit]; }
  // The same cells of a house 0..26, numbered as in Houses: bit k for its k-th cell.
  Mask PlacesIn(int house, int digit) const { return places_[digit][house]; }
  CellSet CellsOfCage(int cage) const { return cages_[cage]; }  // 0..8
  // The cell of a cage 0..8 where the digit is written, or -1.
  int WrittenAt(int cage, int digit) const { return written_[digit][cage]; }

 private:
  // Calls `visit` with each house of the cell, and the bit of the cell in it.
  template <typename Visit>
  void ForEachSeat(int cell, const Visit& visit) const {
    visit(RowOf(cell), static_cast<Mask>(1 << ColumnOf(cell)));
    visit(kSide + ColumnOf(cell), static_cast<Mask>(1 << RowOf(cell)));
    visit(2 * kSide + layout_.CageOf(cell) - 1, bitInCage_[cell]);
  }

  void FollowCages();
  void AddCandidates(int cell);
  void Write(int cell, int digit);
  void TakeFromHouses(int cell, int digit);
  void Remove(int cell, int digit);

  const Layout& layout_;
  Grid board_;
  MaskBoard candidates_;
  std::array<std::array<Mask, 3 * kSide>, kSide> places_{};
  std::array<CellSet, kSide> cells_{};
  std::array<CellSet, kSide> cages_{};
  std::array<std::array<std::int8_t, kSide>, kSide> written_{};
  PerCell<Mask> bitInCage_{};
  int open_ = 0;
  // Noted while candidates go, looked at by the next round of that kind. A note can be out of date:
  // the cell or the digit has been written since.
  CellSet nakedSingles_;
  std::array<std::uint32_t, kSide> hiddenSingles_{};  // by digit: bit h for house h
};

}  // namespace tessel::grade
