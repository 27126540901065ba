#include "hints/hint_captions.h"

namespace tessel {

void HighlightHint(const GameState& state, Form& form) {
  switch (state.HintKind) {
    case HintCode::None:
      break;
    case HintCode::NakedSingle:
    case HintCode::HiddenSingleRow:
    case HintCode::HiddenSingleColumn:
    case HintCode::HiddenSingleCage:
    case HintCode::PointingPair:
      form.HighlightCell(state.HintCell);
      break;
    case HintCode::NakedSubsetCage:
    case HintCode::HiddenSubsetCage:
      form.HighlightCell(state.CageCells[state.HintUnit3 - 1][0]);
      break;
    case HintCode::BoxLineRow:
    case HintCode::NakedSubsetRow:
    case HintCode::HiddenSubsetRow:
      form.SetLabelRow(state.HintUnit1, kHighlightRed);
      break;
    case HintCode::BoxLineColumn:
    case HintCode::NakedSubsetColumn:
    case HintCode::HiddenSubsetColumn:
      form.SetLabelColumn(state.HintUnit2, kHighlightRed);
      break;
    case HintCode::SwordFishRows:
      form.SetLabelRow(state.HintUnit3, kHighlightRed);
      [[fallthrough]];
    case HintCode::XWingRows:
      form.SetLabelRow(state.HintUnit1, kHighlightRed);
      form.SetLabelRow(state.HintUnit2, kHighlightRed);
      break;
    case HintCode::SwordFishColumns:
      form.SetLabelColumn(state.HintUnit3, kHighlightRed);
      [[fallthrough]];
    case HintCode::XWingColumns:
      form.SetLabelColumn(state.HintUnit1, kHighlightRed);
      form.SetLabelColumn(state.HintUnit2, kHighlightRed);
      break;
  }
}

}  // namespace tessel
