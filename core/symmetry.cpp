#include "core/symmetry.h"

#include <algorithm>

namespace tessel {

namespace {

using Sources = std::array<PerCell<std::uint8_t>, kSymmetries.size()>;

constexpr Sources kSources = [] {
  Sources sources{};
  for (std::size_t i = 0; i < kSymmetries.size(); ++i) {
    for (int cell = 0; cell < kCellCount; ++cell) {
      sources[i][cell] = static_cast<std::uint8_t>(SourceOf(kSymmetries[i], cell));
    }
  }
  return sources;
}();

// The numbers 1..9 of the board, moved and renumbered as they are met; 0 stays.
PerCell<std::uint8_t> AsMet(const PerCell<std::uint8_t>& board,
                            const PerCell<std::uint8_t>& sources) {
  std::array<std::uint8_t, kSide + 1> names{};
  std::uint8_t met = 0;
  PerCell<std::uint8_t> renumbered{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const std::uint8_t number = board[sources[cell]];
    if (number != 0 && names[number] == 0) names[number] = ++met;
    renumbered[cell] = names[number];
  }
  return renumbered;
}

Grid PlacesOf(const Grid& givens) {
  Grid places = givens;
  for (std::uint8_t& digit : places) digit = digit == 0 ? 0 : 1;
  return places;
}

// Bit i: the board is the same after kSymmetries[i].
unsigned SymmetriesOf(const PerCell<std::uint8_t>& board) {
  unsigned bits = 0;
  const auto unmoved = AsMet(board, kSources[0]);
  for (std::size_t i = 0; i < kSymmetries.size(); ++i) {
    if (AsMet(board, kSources[i]) == unmoved) bits |= 1U << i;
  }
  return bits;
}

constexpr unsigned Bits(std::initializer_list<Symmetry> symmetries) {
  unsigned bits = 1;
  for (const Symmetry symmetry : symmetries) bits |= 1U << static_cast<unsigned>(symmetry);
  return bits;
}

struct Group {
  unsigned bits;
  std::string_view name;
};

// All the sets of symmetries that a board can have.
constexpr std::array kGroups{
    Group{Bits({}), "none"},
    Group{Bits({Symmetry::kHalfTurn}), "half-turn"},
    Group{Bits({Symmetry::kLeftRight}), "left-right"},
    Group{Bits({Symmetry::kUpDown}), "up-down"},
    Group{Bits({Symmetry::kDiagonal}), "diagonal"},
    Group{Bits({Symmetry::kAntidiagonal}), "antidiagonal"},
    Group{Bits({Symmetry::kHalfTurn, Symmetry::kLeftRight, Symmetry::kUpDown}),
          "left-right and up-down"},
    Group{Bits({Symmetry::kHalfTurn, Symmetry::kDiagonal, Symmetry::kAntidiagonal}),
          "both diagonals"},
    Group{Bits({Symmetry::kQuarterTurn, Symmetry::kHalfTurn, Symmetry::kThreeQuarterTurn}),
          "quarter-turn"},
    Group{255, "full"},
};

}  // namespace

CanonicalForm CanonicalFormOf(const Layout& layout, const Grid& givens) {
  CanonicalForm least{AsMet(layout.Cages(), kSources[0]), AsMet(givens, kSources[0])};
  for (std::size_t i = 1; i < kSymmetries.size(); ++i) {
    // Nearly always the cages decide.
    const CageNumbers cages = AsMet(layout.Cages(), kSources[i]);
    if (cages > least.cages) continue;
    least = std::min(least, CanonicalForm{cages, AsMet(givens, kSources[i])});
  }
  return least;
}

std::string_view SymmetryNameOf(const Layout& layout, const Grid& givens) {
  const unsigned bits = SymmetriesOf(layout.Cages()) & SymmetriesOf(PlacesOf(givens));
  return std::ranges::find(kGroups, bits, &Group::bits)->name;
}

}  // namespace tessel
