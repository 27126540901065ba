#include "shell/candidate_marks.h"

#include "core/texts.h"

namespace tessel {

void CandidateMarks::SwitchPencilmarksOn() {
  Refresh(state_.Candidates);
}

void CandidateMarks::SwitchPencilmarksOff() {
  MaskBoard all;
  all.fill(kAllCandidates);
  Refresh(all);
}

void CandidateMarks::Refresh(const MaskBoard& shown) {
  state_.AssignmentPending = Bool16::kFalse;
  form_.SetButtonCaption(Button::CommandHint, texts::kHint);
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int entry = state_.PlayBoard.Board[cell];
    form_.SetCellText(cell, entry);
    form_.ShowMarks(cell, entry == 0 ? shown[cell] : Mask{0});
  }
}

}  // namespace tessel
