#include "tests/oracle/hints/literal_hints.h"

namespace tessel::literal {

namespace {

// Tries every combination of 2 to 5 positions of a house in lexicographic order until one is taken.
template <typename Try>
bool AnyPositions(int n, Try take) {
  for (int i = 0; n == 2 && i <= 7; ++i) {
    for (int j = i + 1; j <= 8; ++j) {
      if (take({i, j}, 2)) return true;
    }
  }
  for (int i = 0; n == 3 && i <= 6; ++i) {
    for (int j = i + 1; j <= 7; ++j) {
      for (int k = j + 1; k <= 8; ++k) {
        if (take({i, j, k}, 3)) return true;
      }
    }
  }
  for (int i = 0; n == 4 && i <= 5; ++i) {
    for (int j = i + 1; j <= 6; ++j) {
      for (int k = j + 1; k <= 7; ++k) {
        for (int l = k + 1; l <= 8; ++l) {
          if (take({i, j, k, l}, 4)) return true;
        }
      }
    }
  }
  for (int i = 0; n == 5 && i <= 4; ++i) {
    for (int j = i + 1; j <= 5; ++j) {
      for (int k = j + 1; k <= 6; ++k) {
        for (int l = k + 1; l <= 7; ++l) {
          for (int m = l + 1; m <= 8; ++m) {
            if (take({i, j, k, l, m}, 4)) return true;  // deliberate: five cells, four digits
          }
        }
      }
    }
  }
  return false;
}

template <typename Try>
bool AnyDigits(int n, Try take) {
  for (int d1 = 1; n == 2 && d1 <= 8; ++d1) {
    for (int d2 = d1 + 1; d2 <= 9; ++d2) {
      if (take({d1, d2})) return true;
    }
  }
  for (int d1 = 1; n == 3 && d1 <= 7; ++d1) {
    for (int d2 = d1 + 1; d2 <= 8; ++d2) {
      for (int d3 = d2 + 1; d3 <= 9; ++d3) {
        if (take({d1, d2, d3})) return true;
      }
    }
  }
  return false;
}

bool Among(Few positions, int k) {
  for (const int position : positions) {
    if (position == k) return true;
  }
  return false;
}

}  // namespace

bool LiteralHints::NakedIsUseful(const Cells& house, Few positions, int required) const {
  int all = 0;
  int common = 511;
  for (const int k : positions) {
    if (Board[house[k]] != 0) return false;
    all |= Candidates[house[k]];
    common &= Candidates[house[k]];
  }
  if (BitCount(all) != required) return false;
  for (int k = 0; k <= 8; ++k) {
    if (!Among(positions, k) && (Candidates[house[k]] & common) != 0) return true;
  }
  return false;
}

int LiteralHints::PlacedIn(const Cells& house) const {
  int placed = 0;
  for (int k = 0; k <= 8; ++k) {
    if (Board[house[k]] != 0) placed |= Bit(Board[house[k]]);
  }
  return placed;
}

bool LiteralHints::HiddenIsUseful(const Cells& house, Few digits, int placed) const {
  int m = 0;
  for (const int d : digits) m |= Bit(d);
  if ((placed & m) != 0) return false;
  Cells recorded{};
  std::size_t count = 0;
  for (int k = 0; k <= 8; ++k) {
    if (Board[house[k]] == 0 && (Candidates[house[k]] & m) != 0) recorded[count++] = house[k];
  }
  if (count != digits.size()) return false;
  for (std::size_t i = 0; i < count; ++i) {
    const int x = recorded[i];
    if ((Candidates[x] & ~m) != 0) return true;
  }
  return false;
}

bool LiteralHints::SubsetIn(const Cells& house, bool Naked, int CountSubset) const {
  if (Naked) {
    return AnyPositions(CountSubset, [&](Few positions, int required) {
      return NakedIsUseful(house, positions, required);
    });
  }
  const int placed = PlacedIn(house);
  return AnyDigits(CountSubset, [&](Few digits) { return HiddenIsUseful(house, digits, placed); });
}

bool LiteralHints::NakedHidden(bool Naked, int CountSubset) {
  Cells house{};
  for (int r = 0; r <= 8; ++r) {
    for (int k = 0; k <= 8; ++k) house[k] = 9 * r + k;
    if (SubsetIn(house, Naked, CountSubset)) {
      HintKind = Naked ? 8 : 11;
      HintUnit1 = r;
      return true;
    }
  }
  for (int c = 0; c <= 8; ++c) {
    for (int k = 0; k <= 8; ++k) house[k] = c + 9 * k;
    if (SubsetIn(house, Naked, CountSubset)) {
      HintKind = Naked ? 9 : 12;
      HintUnit2 = c;
      return true;
    }
  }
  for (int g = 1; g <= 9; ++g) {
    for (int k = 0; k <= 8; ++k) house[k] = CageCells[g - 1][k];
    if (SubsetIn(house, Naked, CountSubset)) {
      HintKind = Naked ? 10 : 13;
      HintUnit3 = g;
      return true;
    }
  }
  return false;
}

bool LiteralHints::SpNaked(const Cells& house, Few positions, int required) {
  int all = 0;
  int common = 511;
  for (const int k : positions) {
    if (Board[house[k]] != 0) return false;
    all |= SpecialMarks[house[k]];
    common &= SpecialMarks[house[k]];
  }
  if (BitCount(all) != required) return false;
  bool useful = false;
  for (int k = 0; k <= 8; ++k) {
    if (!Among(positions, k) && (SpecialMarks[house[k]] & common) != 0) useful = true;
  }
  if (!useful) return false;
  for (int k = 0; k <= 8; ++k) {
    if (!Among(positions, k) && (SpecialMarks[house[k]] & all) != 0) {
      SpecialMarks[house[k]] &= ~all;
      return true;
    }
  }
  return false;
}

bool LiteralHints::SpHidden(const Cells& house, Few digits, int placed) {
  int m = 0;
  for (const int d : digits) m |= Bit(d);
  if ((placed & m) != 0) return false;
  Cells recorded{};
  std::size_t count = 0;
  for (int k = 0; k <= 8; ++k) {
    if (Board[house[k]] == 0 && (SpecialMarks[house[k]] & m) != 0) recorded[count++] = house[k];
  }
  if (count != digits.size()) return false;
  for (std::size_t i = 0; i < count; ++i) {
    const int x = recorded[i];
    if ((SpecialMarks[x] & ~m) != 0) {
      SpecialMarks[x] &= m;
      return true;
    }
  }
  return false;
}

bool LiteralHints::SpSubsetIn(const Cells& house, int CountSubset, bool Naked) {
  if (Naked) {
    return AnyPositions(CountSubset, [&](Few positions, int required) {
      return SpNaked(house, positions, required);
    });
  }
  const int placed = PlacedIn(house);
  return AnyDigits(CountSubset, [&](Few digits) { return SpHidden(house, digits, placed); });
}

bool LiteralHints::SpNakedHidden(int CountSubset, bool Naked) {
  Cells house{};
  for (int r = 0; r <= 8; ++r) {
    for (int k = 0; k <= 8; ++k) house[k] = 9 * r + k;
    if (SpSubsetIn(house, CountSubset, Naked)) return true;
  }
  for (int c = 0; c <= 8; ++c) {
    for (int k = 0; k <= 8; ++k) house[k] = c + 9 * k;
    if (SpSubsetIn(house, CountSubset, Naked)) return true;
  }
  for (int g = 1; g <= 9; ++g) {
    for (int k = 0; k <= 8; ++k) house[k] = CageCells[g - 1][k];
    if (SpSubsetIn(house, CountSubset, Naked)) return true;
  }
  return false;
}

}  // namespace tessel::literal
