#include "shell/hint_button.h"

#include "core/texts.h"
#include "hints/ladder.h"
#include "hints/mistakes.h"
#include "shell/hint_fields.h"
#include "shell/special_pass.h"

namespace tessel {

namespace {

void Redden(Form& form, const Captions& captions) {
  for (int line = 0; line < kSide; ++line) {
    if ((captions.rows >> line & 1) != 0) form.SetLabelRow(line, kHighlightRed);
    if ((captions.columns >> line & 1) != 0) form.SetLabelColumn(line, kHighlightRed);
  }
}

}  // namespace

void HintButton::CommandHint_Click() {
  if (RevealAssignment()) return;
  form_.SetAllCaptions(kBlack);
  if (ReportWrongDigit()) return;
  if (state_.PencilmarkMode == MarkMode::kNotUpdated) {
    return SpecialPass(state_, form_, sounds_).SpecialHint();
  }
  const Layout layout = LayoutOf(state_);
  const MarkedBoard board{layout, state_.PlayBoard.Board, state_.Candidates};
  if (ReportMisplacedCandidate(board) || ClimbLadder(board)) return;
  form_.SetTextHint(texts::kNoMoreHints);
}

// Comes before the captions turn black: red ones of an earlier hint stay red, on purpose.
bool HintButton::RevealAssignment() {
  if (state_.AssignmentPending == Bool16::kFalse) return false;
  PointAt(state_.HintCell, Sound::kCashRegister, RevealedDigit(state_.HintCell, state_.HintDigit));
  state_.AssignmentPending = Bool16::kFalse;
  form_.SetButtonCaption(Button::CommandHint, texts::kHint);
  return true;
}

bool HintButton::ReportWrongDigit() {
  const Grid& digits = state_.PlayBoard.Board;
  const auto cell = FindWrongDigit(digits, state_.PlayBoard.Solution);
  if (cell) PointAt(*cell, Sound::kError, WrongDigitSentence(*cell, digits[*cell]));
  return cell.has_value();
}

bool HintButton::ReportMisplacedCandidate(const MarkedBoard& board) {
  if (const auto cell = FindLostCandidate(board, state_.PlayBoard.Solution)) {
    PointAt(*cell, Sound::kError, LostCandidateSentence(*cell));
    return true;
  }
  const auto cell = FindStaleCandidate(board);
  if (cell) PointAt(*cell, Sound::kGiggle, StaleCandidateSentence(*cell, board.digits[*cell]));
  return cell.has_value();
}

bool HintButton::ClimbLadder(const MarkedBoard& board) {
  for (const Technique* technique : kLadder) {
    const auto hint = FirstHint(*technique, board);
    if (!hint) continue;
    WriteHintFields(state_, *hint);
    sounds_.PlaySound(Sound::kCashRegister);
    Redden(form_, technique->captions(*hint));
    form_.SetTextHint(technique->sentence(*hint));
    return true;
  }
  return false;
}

void HintButton::PointAt(int cell, Sound sound, const std::string& sentence) {
  sounds_.PlaySound(sound);
  form_.HighlightCell(cell);
  form_.SetTextHint(sentence);
}

}  // namespace tessel
