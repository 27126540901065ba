#include "core/form.h"

#include "core/texts.h"

namespace tessel {

Form::Form(View& view) : view_(view), caption_(texts::kProgram), textHint_(texts::kPressHint) {
  for (const ButtonTraits& traits : kButtonTable) {
    buttons_[IndexOf(traits.button)] = {traits.caption, traits.enabledAtStart};
  }
  for (const CheckBoxTraits& traits : kCheckBoxTable) {
    boxes_[IndexOf(traits.box)] = traits.checkedAtStart;
  }
}

template <typename T>
void Form::Assign(T& field, const T& value, FormPart part, int index) {
  if (field == value) return;
  field = value;
  view_.FormChanged(part, index);
}

DisplayedMark& Form::MarkOf(int cell, int digit) {
  return CellOf(cell).marks[digit - 1];
}

const DisplayedMark& Form::Mark(int cell, int digit) const {
  return Cell(cell).marks[digit - 1];
}

void Form::SetCellText(int cell, int digit) {
  Assign(CellOf(cell).text, digit, FormPart::kCell, cell);
}
void Form::SetCellOpaque(int cell, bool opaque) {
  Assign(CellOf(cell).opaque, opaque, FormPart::kCell, cell);
}
void Form::SetCellBackground(int cell, Rgb colour) {
  Assign(CellOf(cell).background, colour, FormPart::kCell, cell);
}

void Form::SetMarkVisible(int cell, int digit, bool visible) {
  Assign(MarkOf(cell, digit).visible, visible, FormPart::kCell, cell);
}
void Form::SetMarkColour(int cell, int digit, Rgb colour) {
  Assign(MarkOf(cell, digit).colour, colour, FormPart::kCell, cell);
}
void Form::SetMarkBold(int cell, int digit, bool bold) {
  Assign(MarkOf(cell, digit).bold, bold, FormPart::kCell, cell);
}
void Form::SetMarksVisible(int cell, bool visible) {
  for (int digit = 1; digit <= kSide; ++digit) SetMarkVisible(cell, digit, visible);
}
void Form::ShowMarks(int cell, Mask digits) {
  for (int digit = 1; digit <= kSide; ++digit) SetMarkVisible(cell, digit, Holds(digits, digit));
}
void Form::SetMarksColour(int cell, Rgb colour) {
  for (int digit = 1; digit <= kSide; ++digit) SetMarkColour(cell, digit, colour);
}

void Form::SetLabelRow(int row, Rgb colour) {
  Assign(rowCaptions_[row], colour, FormPart::kRowCaption, row);
}
void Form::SetLabelColumn(int column, Rgb colour) {
  Assign(columnCaptions_[column], colour, FormPart::kColumnCaption, column);
}
void Form::SetAllCaptions(Rgb colour) {
  for (int line = 0; line < kSide; ++line) {
    SetLabelRow(line, colour);
    SetLabelColumn(line, colour);
  }
}
void Form::HighlightCell(int cell) {
  SetLabelRow(RowOf(cell), kHighlightRed);
  SetLabelColumn(ColumnOf(cell), kHighlightRed);
}

void Form::Enable(Button button, bool enabled) {
  Assign(buttons_[IndexOf(button)].enabled, enabled, FormPart::kButton, static_cast<int>(button));
}
void Form::SetButtonCaption(Button button, const std::string& caption) {
  Assign(buttons_[IndexOf(button)].caption, caption, FormPart::kButton, static_cast<int>(button));
}
void Form::SetChecked(CheckBox box, bool checked) {
  Assign(boxes_[IndexOf(box)], checked, FormPart::kCheckBox, static_cast<int>(box));
}

void Form::SetCaption(const std::string& caption) {
  Assign(caption_, caption, FormPart::kWindowCaption);
}
void Form::ShowSolveButtons(bool visible) {
  Assign(solveButtonsVisible_, visible, FormPart::kSolveButtons);
}
void Form::SetRunning(std::optional<Button> button) {
  Assign(running_, button, FormPart::kSolveButtons);
}
void Form::SetTextHint(const std::string& text) {
  Assign(textHint_, text, FormPart::kHintText);
}
void Form::SetNotice(const std::string& text) {
  Assign(notice_, text, FormPart::kNotice);
}
void Form::SetNews(const std::string& text) {
  Assign(news_, text, FormPart::kNews);
}

void Form::ReplaceText1Selection(const std::string& text) {
  if (text1_.ReplaceSelection(text)) view_.FormChanged(FormPart::kText1, 0);
}

}  // namespace tessel
