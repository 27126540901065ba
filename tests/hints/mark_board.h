// A board of few marks for the tests of one technique: regular cages, empty cells, stale hint
// fields.
#pragma once

#include <initializer_list>
#include <vector>

#include "core/game_state.h"
#include "tests/hints/hint_fields.h"

namespace tessel {

using Digits = std::initializer_list<int>;
using CellList = std::vector<int>;

inline Mask MaskOf(Digits digits) {
  Mask mask = 0;
  for (const int digit : digits) mask = static_cast<Mask>(mask | BitOf(digit));
  return mask;
}

// The cells of a row or column at the given places.
inline CellList InRow(int row, Digits columns) {
  CellList cells;
  for (const int column : columns) cells.push_back(CellAt(row, column));
  return cells;
}
inline CellList InColumn(int column, Digits rows) {
  CellList cells;
  for (const int row : rows) cells.push_back(CellAt(row, column));
  return cells;
}

// Every mark is off until a test sets it.
struct MarkBoard {
  MarkBoard() {
    FillTables(state);
    SetLayout(state, Layout::Regular());
    MakeStale(state);
  }

  // Adds the digits to the marks of the cells.
  void Mark(const CellList& cells, Digits digits) {
    for (const int cell : cells) {
      state.Candidates[cell] = static_cast<Mask>(state.Candidates[cell] | MaskOf(digits));
    }
  }
  // Gives the cells these marks alone.
  void Set(const CellList& cells, Digits digits) {
    for (const int cell : cells) state.Candidates[cell] = MaskOf(digits);
  }
  void Place(int cell, int digit) {
    state.PlayBoard.Board[cell] = static_cast<std::uint8_t>(digit);
    state.Candidates[cell] = 0;
  }
  // Opens everything but row G: two cells of 3 and 4, three of 5, 6 and 7, four filled ones.
  void OpenAllButRowG() {
    state.Candidates.fill(kAllCandidates);
    Set(InRow(6, {0, 8}), {3, 4});
    Set(InRow(6, {1, 4, 7}), {5, 6, 7});
    Place(CellAt(6, 2), 1);
    Place(CellAt(6, 3), 2);
    Place(CellAt(6, 5), 8);
    Place(CellAt(6, 6), 9);
  }
  HintFields Result() const { return FieldsOf(state); }

  GameState state;
};

}  // namespace tessel
