// One step of a solution: what is seen, and what follows from it.
#pragma once

#include <optional>
#include <vector>

#include "core/cell_set.h"
#include "core/houses.h"
#include "grade/step_kind.h"

namespace tessel::grade {

struct HouseName {
  HouseKind kind = HouseKind::kRow;
  int index = 0;  // row, column or cage - 1: 0..8

  friend bool operator==(const HouseName&, const HouseName&) = default;
};

struct Placement {
  int cell = 0;
  int digit = 0;  // 1..9

  friend bool operator==(const Placement&, const Placement&) = default;
};

struct Removal {
  int cell = 0;
  Mask digits = 0;  // candidates of the cell, never none

  friend bool operator==(const Removal&, const Removal&) = default;
};

// A single places a digit, every other kind removes candidates.
//
// kind           houses                              cells                        digits
// naked single   none                                the cell                     its candidate
// hidden single  those where it is the only place    the cell                     the digit
// pointing       the cage                            its places for the digit     the digit
// claiming       the line, the cage                  the line's places            the digit
// naked set      the house                           the set's cells              all they hold
// hidden set     the house                           the only places              of these digits
// leftovers      the lines, the cages                the lines' places, or the    the digit
//                                                    cages' (`inLines` is false)
// X-Wing, ...    the lines                           their places                 the digit
struct Step {
  StepKind kind = StepKind::kNakedSingle;
  std::vector<HouseName> houses;
  CellSet cells;
  Mask digits = 0;
  // Leftovers: true when all the digit's places in the lines lie in the cages, so that it leaves
  // the rest of the cages; false when all its places in the cages lie in the lines.
  bool inLines = false;
  std::optional<Placement> placement = std::nullopt;
  std::vector<Removal> removals = {};  // in increasing order of cells

  friend bool operator==(const Step&, const Step&) = default;
};

}  // namespace tessel::grade
