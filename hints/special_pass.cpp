#include "hints/special_pass.h"

#include <cmath>

#include "core/texts.h"
#include "hints/hint_messages.h"
#include "hints/hint_result.h"
#include "hints/pattern_search.h"

namespace tessel {

namespace {

constexpr Rgb kSpecialMark{0x10, 0xD0, 0xD0};
constexpr Rgb kWindowText = kBlack;

// Makes the one elimination of the subset in the lowest position of its house where a mask changes.
// A useful subset always has such a position, so the search need not go on behind it: a candidate
// that all its cells hold is one of its digits, and a spare candidate is outside them.
bool Eliminate(const SubsetFind& find, Subset family, MaskBoard& masks) {
  const bool naked = family == Subset::Naked;
  const Positions targets = naked ? Without(kAllPositions, find.positions) : find.positions;
  const Mask removed = naked ? find.digits : Without(kAllCandidates, find.digits);
  const auto changes = [&](int k) { return (masks[find.house.cells[k]] & removed) != 0; };
  const auto position = FirstOf(targets, changes);
  if (!position) return false;
  Mask& mask = masks[find.house.cells[*position]];
  mask = Without(mask, removed);
  return true;
}

bool LiesIn(const House& line, int cell) {
  return line.index == (line.kind == HouseKind::kRow ? RowOf(cell) : ColumnOf(cell));
}

}  // namespace

// Ends, because every round that goes on has taken a candidate from SpecialMarks.
void SpecialPass::SpecialHint() {
  state_.SpecialMarks = state_.Candidates;
  while (true) {
    // Deliberate: hidden before naked, the other way round than the normal ladder.
    if (SpHiddenSingle() || SpNakedSingle()) return Announce();
    if (!MakeElimination()) return form_.SetTextHint(texts::kNoMoreHints);
  }
}

void SpecialPass::Announce() {
  sounds_.PlaySound(Sound::kCashRegister);
  state_.AssignmentPending = Bool16::True;
  form_.SetButtonCaption(Button::CommandHint, texts::kShowMe);
  form_.HighlightCell(state_.HintCell);
  form_.SetTextHint(AnnouncedCellMessage(state_));
}

bool SpecialPass::MakeElimination() {
  return SpPointingPair() || SpBoxLine() ||  //
         SpNakedHidden({2}, Subset::Naked) || SpNakedHidden({3}, Subset::Naked) ||
         SpNakedHidden({2}, Subset::Hidden) || SpNakedHidden({4}, Subset::Naked) ||
         SpNakedHidden({3}, Subset::Hidden) || SpNakedHidden({5}, Subset::Naked);
}

bool SpecialPass::SpHiddenSingle() {
  const auto find = FindHiddenSingle(state_, state_.SpecialMarks);
  if (!find) return false;
  WriteHiddenSingle(state_, *find);
  state_.HintDigit = static_cast<std::int16_t>(find->digit);
  return true;
}

bool SpecialPass::SpNakedSingle() {
  const auto cell = FindNakedSingle(state_, state_.SpecialMarks);
  if (!cell) return false;
  WriteNakedSingle(state_, *cell);
  // Deliberate: the rounded square root of the mask. It is the digit for 1 and 6 only.
  const double root = std::sqrt(static_cast<double>(state_.SpecialMarks[*cell]));
  state_.HintDigit = static_cast<std::int16_t>(std::lround(root));
  return true;
}

bool SpecialPass::SpPointingPair() {
  const auto find = FindPointingPair(state_, state_.SpecialMarks);
  if (!find) return false;
  RemoveMark(find->cell, find->digit);
  return true;
}

bool SpecialPass::SpBoxLine() {
  const auto find = FindBoxLine(state_, state_.SpecialMarks);
  if (!find) return false;
  for (const int cell : state_.CageCells[find->cage - 1]) {
    if (!LiesIn(find->line, cell)) RemoveMark(cell, find->digit);
  }
  return true;
}

bool SpecialPass::SpNakedHidden(CountSubset count, Subset Naked) {
  const auto find = FindSubset(state_, state_.SpecialMarks, Naked, count);
  return find && Eliminate(*find, Naked, state_.SpecialMarks);
}

void SpecialPass::RemoveMark(int cell, int digit) {
  Mask& mask = state_.SpecialMarks[cell];
  mask = Without(mask, BitOf(digit));
}

void SpecialPass::SpecialPencilmarks(bool highlighted) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetMarksColour(cell, highlighted ? kSpecialMark : kWindowText);
    form_.SetMarksVisible(cell, true);
  }
}

}  // namespace tessel
