#include "tests/oracle/hints/literal_click.h"

namespace tessel::literal {

namespace {

std::string Row(int r) {
  return std::string(1, "ABCDEFGHJ"[r]);
}
std::string Column(int c) {
  return std::string(1, "123456789"[c]);
}

}  // namespace

std::string NameOf(int cell) {
  return Row(cell / 9) + Column(cell % 9);
}

void LiteralClick::CommandHint_Click() {
  if (AssignmentPending) return RevealAssignment();
  for (int i = 0; i <= 8; ++i) {
    redRows[i] = false;
    redColumns[i] = false;
  }
  if (WrongDigit()) return;
  if (PencilmarkMode == 1) return Special();
  if (LostCandidate()) return;
  if (StaleCandidate()) return;
  if (Ladder()) return;
  textHint = "No more logical hints";
}

void LiteralClick::RedCell(int cell) {
  redRows[cell / 9] = true;
  redColumns[cell % 9] = true;
}

void LiteralClick::RevealAssignment() {
  sounds.push_back(7);
  RedCell(hints.HintCell);
  textHint = "Candidate " + std::to_string(hints.HintDigit) + " can savely be assigned to cell " +
             NameOf(hints.HintCell);
  AssignmentPending = false;
  buttonCaption = "Hint";
}

bool LiteralClick::WrongDigit() {
  for (int cell = 0; cell <= 80; ++cell) {
    if (hints.Board[cell] != 0 && hints.Board[cell] != hints.Solution[cell]) {
      sounds.push_back(8);
      RedCell(cell);
      textHint = "Incorrect number " + std::to_string(hints.Board[cell]) + " at cell " +
                 NameOf(cell) + " - Click that cell with the middle button";
      return true;
    }
  }
  return false;
}

bool LiteralClick::LostCandidate() {
  for (int cell = 0; cell <= 80; ++cell) {
    if (hints.Board[cell] == 0 && (hints.Candidates[cell] & Bit(hints.Solution[cell])) == 0) {
      sounds.push_back(8);
      RedCell(cell);
      textHint = "The correct number is no longer shown as a possibility at cell " + NameOf(cell) +
                 " - Click that cell with the middle button";
      return true;
    }
  }
  return false;
}

bool LiteralClick::StaleCandidate() {
  for (int cell = 0; cell <= 80; ++cell) {
    const int d = hints.Board[cell];
    if (d == 0) continue;
    const int r = cell / 9;
    const int c = cell % 9;
    const int g = hints.CageOfCell[cell];
    for (int k = 0; k <= 8; ++k) {
      if ((hints.Candidates[9 * r + k] & Bit(d)) != 0 ||
          (hints.Candidates[9 * k + c] & Bit(d)) != 0 ||
          (hints.Candidates[hints.CageCells[g - 1][k]] & Bit(d)) != 0) {
        sounds.push_back(9);
        RedCell(cell);
        textHint = "Since number " + std::to_string(d) + " is located at cell " + NameOf(cell) +
                   ", this number cannot longer be a candidate in that same row, column or cage";
        return true;
      }
    }
  }
  return false;
}

bool LiteralClick::Ladder() {
  if (hints.NakedSingle()) {
    sounds.push_back(7);
    RedCell(hints.HintCell);
    textHint = "Naked single at cell " + NameOf(hints.HintCell);
    return true;
  }
  if (hints.HiddenSingle()) {
    SayHiddenSingle();
    return true;
  }
  if (hints.PointingPair()) {
    sounds.push_back(7);
    RedCell(hints.HintCell);
    textHint = "A candidate from cell " + NameOf(hints.HintCell) +
               " can be removed since it is pointed by some cells from a near cage all holding "
               "that candidate";
    return true;
  }
  if (hints.BoxLine()) {
    SayBoxLine();
    return true;
  }
  if (Subset(true, 2, "naked pair")) return true;
  if (Subset(true, 3, "naked triple")) return true;
  if (Subset(false, 2, "hidden pair")) return true;
  if (Subset(true, 4, "naked quad")) return true;
  if (Subset(false, 3, "hidden triple")) return true;
  if (Subset(true, 5, "naked quint")) return true;
  if (hints.XWing()) {
    SayXWing();
    return true;
  }
  if (hints.SwordFish()) {
    SaySwordFish();
    return true;
  }
  return false;
}

void LiteralClick::SayHiddenSingle() {
  sounds.push_back(7);
  RedCell(hints.HintCell);
  const std::string cell = NameOf(hints.HintCell);
  if (hints.HintKind == 4) textHint = "Hidden single in cage at cell " + cell;
  if (hints.HintKind == 3) textHint = "Hidden single in column at cell " + cell;
  if (hints.HintKind == 2) textHint = "Hidden single in row at cell " + cell;
}

void LiteralClick::SayBoxLine() {
  sounds.push_back(7);
  const std::string tail =
      " containing candidate " + std::to_string(hints.HintDigit) +
      " all belong to the same cage, therefore that candidate can be removed from the other cells "
      "of that cage";
  if (hints.HintKind == 7) {
    redColumns[hints.HintUnit2] = true;
    textHint = "The cells in column " + Column(hints.HintUnit2) + tail;
  }
  if (hints.HintKind == 6) {
    redRows[hints.HintUnit1] = true;
    textHint = "The cells in row " + Row(hints.HintUnit1) + tail;
  }
}

bool LiteralClick::Subset(bool naked, int size, const std::string& name) {
  if (!hints.NakedHidden(naked, size)) return false;
  sounds.push_back(7);
  const std::string start = "A " + name + " is present in ";
  std::string place;
  std::string house;
  if (hints.HintKind == 10 || hints.HintKind == 13) {
    const int first = hints.CageCells[hints.HintUnit3 - 1][0];
    RedCell(first);
    place = "the cage that starts at cell " + NameOf(first);
    house = "cage";
  }
  if (hints.HintKind == 9 || hints.HintKind == 12) {
    redColumns[hints.HintUnit2] = true;
    place = "column " + Column(hints.HintUnit2);
    house = "column";
  }
  if (hints.HintKind == 8 || hints.HintKind == 11) {
    redRows[hints.HintUnit1] = true;
    place = "row " + Row(hints.HintUnit1);
    house = "row";
  }
  textHint = start + place +
             (naked ? " and leads to elimination in other cells of that " + house
                    : " and leads to elimination of candidates");
  return true;
}

void LiteralClick::SayXWing() {
  sounds.push_back(7);
  const std::string start =
      "Candidate " + std::to_string(hints.HintDigit) + " forms an X-Wing pattern in ";
  if (hints.HintKind == 15) {
    redColumns[hints.HintUnit1] = true;
    redColumns[hints.HintUnit2] = true;
    textHint = start + "columns " + Column(hints.HintUnit1) + " and " + Column(hints.HintUnit2) +
               ". Elimination(s) can be done in the crossing rows";
  }
  if (hints.HintKind == 14) {
    redRows[hints.HintUnit1] = true;
    redRows[hints.HintUnit2] = true;
    textHint = start + "rows " + Row(hints.HintUnit1) + " and " + Row(hints.HintUnit2) +
               ". Elimination(s) can be done in the crossing columns";
  }
}

void LiteralClick::SaySwordFish() {
  sounds.push_back(7);
  const std::string start = "Candidate " + std::to_string(hints.HintDigit) + " forms ";
  if (hints.HintKind == 17) {
    redColumns[hints.HintUnit1] = true;
    redColumns[hints.HintUnit2] = true;
    redColumns[hints.HintUnit3] = true;
    textHint = start + "an SwordFish pattern in columns " + Column(hints.HintUnit1) + ", " +
               Column(hints.HintUnit2) + " and " + Column(hints.HintUnit3) +
               ". Elimination(s) can be done in the crossing rows";
  }
  if (hints.HintKind == 16) {
    redRows[hints.HintUnit1] = true;
    redRows[hints.HintUnit2] = true;
    redRows[hints.HintUnit3] = true;
    textHint = start + "a SwordFish pattern in rows " + Row(hints.HintUnit1) + ", " +
               Row(hints.HintUnit2) + " and " + Row(hints.HintUnit3) +
               ". Elimination(s) can be done in the crossing columns";
  }
}

void LiteralClick::Special() {
  if (!hints.SpecialHint()) {
    textHint = "No more logical hints";
    return;
  }
  sounds.push_back(7);
  AssignmentPending = true;
  buttonCaption = "Show Me";
  RedCell(hints.HintCell);
  textHint = "A candidate can savely be assigned to cell " + NameOf(hints.HintCell);
}

}  // namespace tessel::literal
