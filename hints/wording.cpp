#include "hints/wording.h"

#include <cassert>

#include "core/names.h"

namespace tessel {

namespace {

// As the name of a line is written alone: "B" or "3".
std::string LineName(const House& line) {
  return line.kind == HouseKind::kRow ? RowName(line.index) : ColumnName(line.index);
}

Mask LineBit(int line) {
  return static_cast<Mask>(1 << line);
}

}  // namespace

std::string NameOf(HouseKind kind) {
  switch (kind) {
    case HouseKind::kRow:
      return "row";
    case HouseKind::kColumn:
      return "column";
    case HouseKind::kCage:
      break;
  }
  return "cage";
}

std::string NameOf(const House& house) {
  if (house.kind == HouseKind::kCage)
    return "the cage that starts at cell " + CellName(house.cells[0]);
  return NameOf(house.kind) + " " + LineName(house);
}

std::string NamesOf(std::span<const House> lines) {
  assert(lines.size() >= 2 && lines[0].kind != HouseKind::kCage);
  std::string names = NameOf(lines[0].kind) + "s " + LineName(lines[0]);
  for (const House& line : lines.subspan(1, lines.size() - 2)) names += ", " + LineName(line);
  return names + " and " + LineName(lines.back());
}

Captions CaptionsOf(int cell) {
  return {LineBit(RowOf(cell)), LineBit(ColumnOf(cell))};
}

Captions CaptionsOf(const House& house) {
  switch (house.kind) {
    case HouseKind::kRow:
      return {LineBit(house.index), 0};
    case HouseKind::kColumn:
      return {0, LineBit(house.index)};
    case HouseKind::kCage:
      break;
  }
  return CaptionsOf(house.cells[0]);
}

Captions CaptionsOfCell(const Hint& hint) {
  assert(hint.cell.has_value());
  return CaptionsOf(*hint.cell);
}

Captions CaptionsOfFirstHouse(const Hint& hint) {
  assert(!hint.houses.empty());
  return CaptionsOf(hint.houses[0]);
}

}  // namespace tessel
