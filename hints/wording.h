// Pieces of sentences and captions that techniques share.
#pragma once

#include <span>
#include <string>

#include "hints/technique.h"

namespace tessel {

// "row B", "column 3" or "the cage that starts at cell D4".
std::string NameOf(const House& house);
// "rows B and F" or "columns 1, 2 and 6"; `lines` are at least two rows or at least two columns.
std::string NamesOf(std::span<const House> lines);
// "row", "column" or "cage".
std::string NameOf(HouseKind kind);

// The cell's row and column.
Captions CaptionsOf(int cell);
// A line's own; for a cage those of its first cell.
Captions CaptionsOf(const House& house);
// For hints that name a cell, and for those that name the first of their houses.
Captions CaptionsOfCell(const Hint& hint);
Captions CaptionsOfFirstHouse(const Hint& hint);

}  // namespace tessel
