// What every control of the window shows now. The logic writes it and reads it back; front ends
// paint from it and hold no copy.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "core/cell.h"
#include "core/colour.h"
#include "core/controls.h"
#include "core/vestiges.h"
#include "core/view.h"

namespace tessel {

// What a control shows at one moment.
struct DisplayedButton {
  std::string caption;
  bool enabled = true;
};

struct DisplayedMark {
  bool visible = true;
  bool bold = false;
  Rgb colour = kBoardColour;
};

struct DisplayedCell {
  int text = 0;         // the digit that the cell's label shows, 0 for none
  bool opaque = false;  // whether the background is drawn
  Rgb background = kBoardColour;
  std::array<DisplayedMark, kSide> marks;  // Mark1..Mark9, index digit - 1

  Rgb PaintedBackground() const { return opaque ? background : kBoardColour; }
};

// Setters drop writes that change nothing and report the others to View::FormChanged. Cells are
// 0..80, rows and columns 0..8, and digits 1..9 but for the text of a cell, where 0 means none.
class Form {
 public:
  explicit Form(View& view);

  const DisplayedCell& Cell(int cell) const { return cells_[cell]; }
  void SetCellText(int cell, int digit);
  void SetCellOpaque(int cell, bool opaque);
  void SetCellBackground(int cell, Rgb colour);

  const DisplayedMark& Mark(int cell, int digit) const;
  void SetMarkVisible(int cell, int digit, bool visible);
  void SetMarkColour(int cell, int digit, Rgb colour);
  void SetMarkBold(int cell, int digit, bool bold);
  void SetMarksVisible(int cell, bool visible);
  // Shows the marks of these digits and hides the others.
  void ShowMarks(int cell, Mask digits);
  void SetMarksColour(int cell, Rgb colour);

  Rgb LabelRow(int row) const { return rowCaptions_[row]; }
  Rgb LabelColumn(int column) const { return columnCaptions_[column]; }
  void SetLabelRow(int row, Rgb colour);
  void SetLabelColumn(int column, Rgb colour);
  void SetAllCaptions(Rgb colour);
  // Colours the captions of the cell's row and column red; the others stay.
  void HighlightCell(int cell);

  const DisplayedButton& Of(Button button) const { return buttons_[IndexOf(button)]; }
  void Enable(Button button, bool enabled);
  void SetButtonCaption(Button button, const std::string& caption);

  bool Checked(CheckBox box) const { return boxes_[IndexOf(box)]; }
  void SetChecked(CheckBox box, bool checked);

  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption);

  bool SolveButtonsVisible() const { return solveButtonsVisible_; }
  void ShowSolveButtons(bool visible);

  // The button whose command is at work: one of those that are long work, or none.
  std::optional<Button> Running() const { return running_; }
  void SetRunning(std::optional<Button> button);
  // While a command runs, the frame as a whole answers nothing, whatever the enabled states of the
  // controls in it.
  bool SolveButtonsEnabled() const { return !running_; }

  const std::string& TextHint() const { return textHint_; }
  void SetTextHint(const std::string& text);

  // The spare text box.
  const std::string& Text1() const { return text1_.Text(); }
  void SelectText1(std::size_t start, std::size_t length) { text1_.Select(start, length); }
  void ReplaceText1Selection(const std::string& text);

  // What went wrong, for the foot of the window; empty when all is well.
  const std::string& Notice() const { return notice_; }
  void SetNotice(const std::string& text);
  // What happened, in one line for the same place; what went wrong is shown before it.
  const std::string& News() const { return news_; }
  void SetNews(const std::string& text);

 private:
  template <typename T>
  void Assign(T& field, const T& value, FormPart part, int index = 0);
  DisplayedCell& CellOf(int cell) { return cells_[cell]; }
  DisplayedMark& MarkOf(int cell, int digit);

  View& view_;
  std::array<DisplayedCell, kCellCount> cells_;
  std::array<Rgb, kSide> rowCaptions_{};
  std::array<Rgb, kSide> columnCaptions_{};
  std::array<DisplayedButton, kButtonCount> buttons_;
  std::array<bool, kCheckBoxCount> boxes_{};
  std::string caption_;
  std::string textHint_;
  SpareText text1_;
  std::string notice_;
  std::string news_;
  bool solveButtonsVisible_ = false;
  std::optional<Button> running_;
};

}  // namespace tessel
