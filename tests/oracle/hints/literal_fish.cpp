#include "tests/oracle/hints/literal_hints.h"

namespace tessel::literal {

namespace {

Cells RowMasks(const Board81& candidates, int d) {
  Cells line{};
  for (int r = 0; r <= 8; ++r) {
    for (int c = 0; c <= 8; ++c) {
      if ((candidates[9 * r + c] & Bit(d)) != 0) line[r] |= 1 << c;
    }
  }
  return line;
}

Cells ColumnMasks(const Board81& candidates, int d) {
  Cells line{};
  for (int c = 0; c <= 8; ++c) {
    for (int r = 0; r <= 8; ++r) {
      if ((candidates[c + 9 * r] & Bit(d)) != 0) line[c] |= 1 << r;
    }
  }
  return line;
}

}  // namespace

bool LiteralHints::XWing() {
  for (int d = 1; d <= 9; ++d) {
    const Cells line = RowMasks(Candidates, d);
    for (int r1 = 0; r1 <= 7; ++r1) {
      for (int r2 = r1 + 1; r2 <= 8; ++r2) {
        if (line[r1] != line[r2] || BitCount(line[r1]) != 2) continue;
        for (int r3 = 0; r3 <= 8; ++r3) {
          if (r3 != r1 && r3 != r2 && (line[r3] & line[r1]) != 0) {
            HintKind = 14;
            HintUnit1 = r1;
            HintUnit2 = r2;
            HintDigit = d;
            return true;
          }
        }
      }
    }
  }
  for (int d = 1; d <= 9; ++d) {
    const Cells line = ColumnMasks(Candidates, d);
    for (int c1 = 0; c1 <= 7; ++c1) {
      for (int c2 = c1 + 1; c2 <= 8; ++c2) {
        if (line[c1] != line[c2] || BitCount(line[c1]) != 2) continue;
        for (int c3 = 0; c3 <= 8; ++c3) {
          if (c3 != c1 && c3 != c2 && (line[c3] & line[c1]) != 0) {
            HintKind = 15;
            HintUnit1 = c1;
            HintUnit2 = c2;
            HintDigit = d;
            return true;
          }
        }
      }
    }
  }
  return false;
}

bool LiteralHints::SwordFish() {
  for (int d = 1; d <= 9; ++d) {
    const Cells line = RowMasks(Candidates, d);
    for (int r1 = 0; r1 <= 6; ++r1) {
      for (int r2 = r1 + 1; r2 <= 7; ++r2) {
        for (int r3 = r2 + 1; r3 <= 8; ++r3) {
          if (line[r1] != line[r2] || line[r1] != line[r3] || BitCount(line[r1]) != 3) continue;
          for (int r4 = 0; r4 <= 8; ++r4) {
            if (r4 != r1 && r4 != r2 && r4 != r3 && (line[r4] & line[r1]) != 0) {
              HintKind = 16;
              HintUnit1 = r1;
              HintUnit2 = r2;
              HintUnit3 = r3;
              HintDigit = d;
              return true;
            }
          }
        }
      }
    }
  }
  for (int d = 1; d <= 9; ++d) {
    const Cells line = ColumnMasks(Candidates, d);
    for (int c1 = 0; c1 <= 6; ++c1) {
      for (int c2 = c1 + 1; c2 <= 7; ++c2) {
        for (int c3 = c2 + 1; c3 <= 8; ++c3) {
          if (line[c1] != line[c2] || line[c1] != line[c3] || BitCount(line[c1]) != 3) continue;
          for (int c4 = 0; c4 <= 8; ++c4) {
            if (c4 != c1 && c4 != c2 && c4 != c3 && (line[c4] & line[c1]) != 0) {
              HintKind = 17;
              HintUnit1 = c1;
              HintUnit2 = c2;
              HintUnit3 = c3;
              HintDigit = d;
              return true;
            }
          }
        }
      }
    }
  }
  return false;
}

}  // namespace tessel::literal
