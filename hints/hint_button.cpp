#include "hints/hint_button.h"

#include <array>

#include "core/texts.h"
#include "hints/hint_captions.h"
#include "hints/hint_messages.h"
#include "hints/special_pass.h"
#include "hints/techniques.h"

namespace tessel {

namespace {

struct Rung {
  bool (*find)(HintTechniques&);
  const char* subset = "";  // the name of the subset searched for
};

constexpr std::array kLadder{
    Rung{[](HintTechniques& hints) { return hints.NakedSingle(); }},
    Rung{[](HintTechniques& hints) { return hints.HiddenSingle(); }},
    Rung{[](HintTechniques& hints) { return hints.PointingPair(); }},
    Rung{[](HintTechniques& hints) { return hints.BoxLine(); }},
    Rung{[](HintTechniques& hints) { return hints.NakedHidden(Subset::Naked, {2}); }, "naked pair"},
    Rung{[](HintTechniques& hints) { return hints.NakedHidden(Subset::Naked, {3}); },
         "naked triple"},
    Rung{[](HintTechniques& hints) { return hints.NakedHidden(Subset::Hidden, {2}); },
         "hidden pair"},
    Rung{[](HintTechniques& hints) { return hints.NakedHidden(Subset::Naked, {4}); }, "naked quad"},
    Rung{[](HintTechniques& hints) { return hints.NakedHidden(Subset::Hidden, {3}); },
         "hidden triple"},
    Rung{[](HintTechniques& hints) { return hints.NakedHidden(Subset::Naked, {5}); },
         "naked quint"},
    Rung{[](HintTechniques& hints) { return hints.XWing(); }},
    Rung{[](HintTechniques& hints) { return hints.SwordFish(); }},
};

bool IsWrongDigit(const GameState& state, int cell) {
  const int digit = state.PlayBoard.Board[cell];
  return digit != 0 && digit != state.PlayBoard.Solution[cell];
}

bool HasLostCandidate(const GameState& state, int cell) {
  return state.PlayBoard.Board[cell] == 0 &&
         !Holds(state.Candidates[cell], state.PlayBoard.Solution[cell]);
}

// Whether the cell's digit is still a candidate in its row, column or cage; the cell itself counts.
bool LeavesStaleCandidate(const GameState& state, int cell) {
  const int digit = state.PlayBoard.Board[cell];
  if (digit == 0) return false;
  MaskBoard cleaned = state.Candidates;
  RemoveFromHouses(state, cell, digit, cleaned);
  return cleaned != state.Candidates;
}

}  // namespace

void HintButton::CommandHint_Click() {
  if (RevealAssignment()) return;
  form_.SetAllCaptions(kBlack);
  if (ReportMistake(IsWrongDigit, Sound::kError, WrongDigitMessage)) return;
  if (state_.PencilmarkMode == MarkMode::kNotUpdated) {
    return SpecialPass(state_, form_, sounds_).SpecialHint();
  }
  if (ReportMistake(HasLostCandidate, Sound::kError, LostCandidateMessage)) return;
  if (ReportMistake(LeavesStaleCandidate, Sound::kGiggle, StaleCandidateMessage)) return;
  if (ClimbLadder()) return;
  form_.SetTextHint(texts::kNoMoreHints);
}

// Comes before the captions turn black: red ones of an earlier hint stay red, on purpose.
bool HintButton::RevealAssignment() {
  if (state_.AssignmentPending == Bool16::False) return false;
  PointAt(state_.HintCell, Sound::kCashRegister, PendingAssignmentMessage(state_));
  state_.AssignmentPending = Bool16::False;
  form_.SetButtonCaption(Button::CommandHint, texts::kHint);
  return true;
}

bool HintButton::ReportMistake(bool (*isMistaken)(const GameState&, int cell), Sound sound,
                               std::string (*message)(const GameState&, int cell)) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (!isMistaken(state_, cell)) continue;
    PointAt(cell, sound, message(state_, cell));
    return true;
  }
  return false;
}

bool HintButton::ClimbLadder() {
  HintTechniques techniques(state_);
  for (const Rung& rung : kLadder) {
    if (!rung.find(techniques)) continue;
    sounds_.PlaySound(Sound::kCashRegister);
    HighlightHint(state_, form_);
    form_.SetTextHint(HintMessage(state_, rung.subset));
    return true;
  }
  return false;
}

void HintButton::PointAt(int cell, Sound sound, const std::string& message) {
  sounds_.PlaySound(sound);
  form_.HighlightCell(cell);
  form_.SetTextHint(message);
}

void HintButton::WriteHint() {}

void HintButton::AddText(const std::string& TextLine) {
  form_.SelectText1(65535, 0);
  form_.ReplaceText1Selection(TextLine);
}

}  // namespace tessel
