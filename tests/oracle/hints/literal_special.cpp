#include <cmath>

#include "tests/oracle/hints/literal_hints.h"

namespace tessel::literal {

bool LiteralHints::SpHiddenSingle() {
  for (int d = 1; d <= 9; ++d) {
    for (int r = 0; r <= 8; ++r) {
      int count = 0;
      int last = 0;
      for (int c = 0; c <= 8; ++c) {
        if ((SpecialMarks[9 * r + c] & Bit(d)) != 0) {
          ++count;
          last = 9 * r + c;
        }
      }
      if (count == 1) {
        HintKind = 2;
        HintUnit1 = r;
        HintCell = last;
        HintDigit = d;
        return true;
      }
    }
    for (int c = 0; c <= 8; ++c) {
      int count = 0;
      int last = 0;
      for (int r = 0; r <= 8; ++r) {
        if ((SpecialMarks[c + 9 * r] & Bit(d)) != 0) {
          ++count;
          last = c + 9 * r;
        }
      }
      if (count == 1) {
        HintKind = 3;
        HintUnit2 = c;
        HintCell = last;
        HintDigit = d;
        return true;
      }
    }
    for (int g = 0; g <= 8; ++g) {
      int count = 0;
      int last = 0;
      for (int k = 0; k <= 8; ++k) {
        if ((SpecialMarks[CageCells[g][k]] & Bit(d)) != 0) {
          ++count;
          last = CageCells[g][k];
        }
      }
      if (count == 1) {
        HintKind = 4;
        HintUnit3 = g;
        HintCell = last;
        HintDigit = d;
        return true;
      }
    }
  }
  return false;
}

bool LiteralHints::SpNakedSingle() {
  for (int cell = 0; cell <= 80; ++cell) {
    if (BitCount(SpecialMarks[cell]) == 1) {
      HintKind = 1;
      HintCell = cell;
      HintDigit = static_cast<int>(std::lround(std::sqrt(SpecialMarks[cell])));
      return true;
    }
  }
  return false;
}

bool LiteralHints::SpPointingPair() {
  for (int d = 1; d <= 9; ++d) {
    for (int g = 1; g <= 9; ++g) {
      int cageCount = 0;
      Board81 counter{};
      for (int k = 0; k <= 8; ++k) {
        const int x = CageCells[g - 1][k];
        if ((SpecialMarks[x] & Bit(d)) == 0) continue;
        ++cageCount;
        const int r = x / 9;
        const int c = x % 9;
        for (int j = 0; j <= 8; ++j) {
          const int across = 9 * r + j;
          if (CageOfCell[across] != g && (SpecialMarks[across] & Bit(d)) != 0) ++counter[across];
          const int down = c + 9 * j;
          if (CageOfCell[down] != g && (SpecialMarks[down] & Bit(d)) != 0) ++counter[down];
        }
      }
      for (int cell = 0; cell <= 80; ++cell) {
        if (cageCount != 0 && counter[cell] == cageCount) {
          SpecialMarks[cell] &= ~Bit(d);
          return true;
        }
      }
    }
  }
  return false;
}

bool LiteralHints::SpBoxLine() {
  for (int d = 1; d <= 9; ++d) {
    for (int r = 0; r <= 8; ++r) {
      int lineCount = 0;
      Cells counter{};
      for (int c = 0; c <= 8; ++c) {
        if ((SpecialMarks[9 * r + c] & Bit(d)) != 0) {
          ++lineCount;
          ++counter[CageOfCell[9 * r + c] - 1];
        }
      }
      for (int g = 1; g <= 9; ++g) {
        if (lineCount == 0 || counter[g - 1] != lineCount) continue;
        int cageCount = 0;
        for (int k = 0; k <= 8; ++k) {
          if ((SpecialMarks[CageCells[g - 1][k]] & Bit(d)) != 0) ++cageCount;
        }
        if (cageCount > lineCount) {
          for (int k = 0; k <= 8; ++k) {
            const int x = CageCells[g - 1][k];
            if (x / 9 != r) SpecialMarks[x] &= ~Bit(d);
          }
          return true;
        }
      }
    }
  }
  for (int d = 1; d <= 9; ++d) {
    for (int c = 0; c <= 8; ++c) {
      int lineCount = 0;
      Cells counter{};
      for (int r = 0; r <= 8; ++r) {
        if ((SpecialMarks[c + 9 * r] & Bit(d)) != 0) {
          ++lineCount;
          ++counter[CageOfCell[c + 9 * r] - 1];
        }
      }
      for (int g = 1; g <= 9; ++g) {
        if (lineCount == 0 || counter[g - 1] != lineCount) continue;
        int cageCount = 0;
        for (int k = 0; k <= 8; ++k) {
          if ((SpecialMarks[CageCells[g - 1][k]] & Bit(d)) != 0) ++cageCount;
        }
        if (cageCount > lineCount) {
          for (int k = 0; k <= 8; ++k) {
            const int x = CageCells[g - 1][k];
            if (x % 9 != c) SpecialMarks[x] &= ~Bit(d);
          }
          return true;
        }
      }
    }
  }
  return false;
}

bool LiteralHints::SpecialHint() {
  for (int cell = 0; cell <= 80; ++cell) SpecialMarks[cell] = Candidates[cell];
  while (true) {
    if (SpHiddenSingle()) return true;
    if (SpNakedSingle()) return true;
    if (SpPointingPair()) continue;
    if (SpBoxLine()) continue;
    if (SpNakedHidden(2, true)) continue;
    if (SpNakedHidden(3, true)) continue;
    if (SpNakedHidden(2, false)) continue;
    if (SpNakedHidden(4, true)) continue;
    if (SpNakedHidden(3, false)) continue;
    if (SpNakedHidden(5, true)) continue;
    return false;
  }
}

}  // namespace tessel::literal
