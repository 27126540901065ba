#include "tests/oracle/hints/literal_hints.h"

namespace tessel::literal {

LiteralHints CopyOf(const GameState& state) {
  LiteralHints copy;
  for (int cell = 0; cell < 81; ++cell) {
    copy.Board[cell] = state.PlayBoard.Board[cell];
    copy.Solution[cell] = state.PlayBoard.Solution[cell];
    copy.Candidates[cell] = state.Candidates[cell];
    copy.SpecialMarks[cell] = state.SpecialMarks[cell];
    copy.CageOfCell[cell] = state.CageOfCell[cell];
  }
  for (int g = 0; g < 9; ++g) {
    for (int k = 0; k < 9; ++k) copy.CageCells[g][k] = state.CageCells[g][k];
  }
  copy.HintKind = static_cast<int>(state.HintKind);
  copy.HintCell = state.HintCell;
  copy.HintDigit = state.HintDigit;
  copy.HintUnit1 = state.HintUnit1;
  copy.HintUnit2 = state.HintUnit2;
  copy.HintUnit3 = state.HintUnit3;
  return copy;
}

bool LiteralHints::NakedSingle() {
  for (int cell = 0; cell <= 80; ++cell) {
    if (BitCount(Candidates[cell]) == 1) {
      HintKind = 1;
      HintCell = cell;
      return true;
    }
  }
  return false;
}

bool LiteralHints::HiddenSingle() {
  for (int d = 1; d <= 9; ++d) {
    for (int r = 0; r <= 8; ++r) {
      int count = 0;
      int last = 0;
      for (int c = 0; c <= 8; ++c) {
        if ((Candidates[9 * r + c] & Bit(d)) != 0) {
          ++count;
          last = 9 * r + c;
        }
      }
      if (count == 1) {
        HintKind = 2;
        HintUnit1 = r;
        HintCell = last;
        return true;
      }
    }
    for (int c = 0; c <= 8; ++c) {
      int count = 0;
      int last = 0;
      for (int r = 0; r <= 8; ++r) {
        if ((Candidates[c + 9 * r] & Bit(d)) != 0) {
          ++count;
          last = c + 9 * r;
        }
      }
      if (count == 1) {
        HintKind = 3;
        HintUnit2 = c;
        HintCell = last;
        return true;
      }
    }
    for (int g = 0; g <= 8; ++g) {
      int count = 0;
      int last = 0;
      for (int k = 0; k <= 8; ++k) {
        if ((Candidates[CageCells[g][k]] & Bit(d)) != 0) {
          ++count;
          last = CageCells[g][k];
        }
      }
      if (count == 1) {
        HintKind = 4;
        HintUnit3 = g;
        HintCell = last;
        return true;
      }
    }
  }
  return false;
}

bool LiteralHints::PointingPair() {
  for (int d = 1; d <= 9; ++d) {
    for (int g = 1; g <= 9; ++g) {
      int cageCount = 0;
      Board81 counter{};
      for (int k = 0; k <= 8; ++k) {
        const int x = CageCells[g - 1][k];
        if ((Candidates[x] & Bit(d)) == 0) continue;
        ++cageCount;
        const int r = x / 9;
        const int c = x % 9;
        for (int j = 0; j <= 8; ++j) {
          const int across = 9 * r + j;
          if (CageOfCell[across] != g && (Candidates[across] & Bit(d)) != 0) ++counter[across];
          const int down = c + 9 * j;
          if (CageOfCell[down] != g && (Candidates[down] & Bit(d)) != 0) ++counter[down];
        }
      }
      for (int cell = 0; cell <= 80; ++cell) {
        if (cageCount != 0 && counter[cell] == cageCount) {
          HintKind = 5;
          HintCell = cell;
          HintUnit3 = g;
          HintDigit = d;
          return true;
        }
      }
    }
  }
  return false;
}

bool LiteralHints::BoxLine() {
  for (int d = 1; d <= 9; ++d) {
    for (int r = 0; r <= 8; ++r) {
      int lineCount = 0;
      Cells counter{};
      for (int c = 0; c <= 8; ++c) {
        if ((Candidates[9 * r + c] & Bit(d)) != 0) {
          ++lineCount;
          ++counter[CageOfCell[9 * r + c] - 1];
        }
      }
      for (int g = 1; g <= 9; ++g) {
        if (lineCount == 0 || counter[g - 1] != lineCount) continue;
        int cageCount = 0;
        for (int k = 0; k <= 8; ++k) {
          if ((Candidates[CageCells[g - 1][k]] & Bit(d)) != 0) ++cageCount;
        }
        if (cageCount > lineCount) {
          HintKind = 6;
          HintUnit1 = r;
          HintUnit3 = g;
          HintDigit = d;
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
        if ((Candidates[c + 9 * r] & Bit(d)) != 0) {
          ++lineCount;
          ++counter[CageOfCell[c + 9 * r] - 1];
        }
      }
      for (int g = 1; g <= 9; ++g) {
        if (lineCount == 0 || counter[g - 1] != lineCount) continue;
        int cageCount = 0;
        for (int k = 0; k <= 8; ++k) {
          if ((Candidates[CageCells[g - 1][k]] & Bit(d)) != 0) ++cageCount;
        }
        if (cageCount > lineCount) {
          HintKind = 7;
          HintUnit2 = c;
          HintUnit3 = g;
          HintDigit = d;
          return true;
        }
      }
    }
  }
  return false;
}

}  // namespace tessel::literal
