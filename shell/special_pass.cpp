#include "shell/special_pass.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "core/names.h"
#include "core/texts.h"
#include "hints/ladder.h"
#include "shell/hint_fields.h"

namespace tessel {

// Deliberate: "savely".
std::string AnnouncedCell(int cell) {
  return "A candidate can savely be assigned to cell " + CellName(cell);
}

std::string RevealedDigit(int cell, int digit) {
  return "Candidate " + std::to_string(digit) + " can savely be assigned to cell " + CellName(cell);
}

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
  state_.AssignmentPending = Bool16::kTrue;
  form_.SetButtonCaption(Button::CommandHint, texts::kShowMe);
  form_.HighlightCell(state_.HintCell);
  form_.SetTextHint(AnnouncedCell(state_.HintCell));
}

bool SpecialPass::MakeElimination() {
  return SpPointingPair() || SpBoxLine() ||  //
         SpNakedHidden({2}, Subset::kNaked) || SpNakedHidden({3}, Subset::kNaked) ||
         SpNakedHidden({2}, Subset::kHidden) || SpNakedHidden({4}, Subset::kNaked) ||
         SpNakedHidden({3}, Subset::kHidden) || SpNakedHidden({5}, Subset::kNaked);
}

bool SpecialPass::SpHiddenSingle() {
  const auto hint = Find(kHiddenSingle);
  if (!hint) return false;
  WriteHintFields(state_, *hint);
  state_.HintDigit = static_cast<std::int16_t>(*hint->digit);
  return true;
}

bool SpecialPass::SpNakedSingle() {
  const auto hint = Find(kNakedSingle);
  if (!hint) return false;
  WriteHintFields(state_, *hint);
  // Deliberate: the rounded square root of the mask. It is the digit for 1 and 6 only.
  const double root = std::sqrt(static_cast<double>(state_.SpecialMarks[*hint->cell]));
  state_.HintDigit = static_cast<std::int16_t>(std::lround(root));
  return true;
}

bool SpecialPass::SpPointingPair() {
  return Eliminate(kPointingPair, Share::kFirstCell);
}

bool SpecialPass::SpBoxLine() {
  return Eliminate(kBoxLine, Share::kAll);
}

bool SpecialPass::SpNakedHidden(CountSubset count, Subset Naked) {
  const Technique* technique = SubsetTechnique(Naked, count.size);
  return technique != nullptr && Eliminate(*technique, Share::kFirstCell);
}

// Makes the layout's houses when it is another one: a pass searches hundreds of times.
std::optional<Hint> SpecialPass::Find(const Technique& technique) {
  if (!std::ranges::equal(layout_.Cages(), state_.CageOfCell)) layout_ = LayoutOf(state_);
  return FirstHint(technique, {layout_, state_.PlayBoard.Board, state_.SpecialMarks});
}

bool SpecialPass::Eliminate(const Technique& technique, Share share) {
  const auto hint = Find(technique);
  if (!hint) return false;
  const std::span<const Elimination> all = hint->eliminations;
  state_.SpecialMarks =
      WithoutEliminated(state_.SpecialMarks, share == Share::kAll ? all : all.first(1));
  return true;
}

}  // namespace tessel
