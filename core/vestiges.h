// Names that the state and the window must keep although no command of the program needs them:
// whoever knows the program by its names finds them here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/board.h"

namespace tessel {

struct StateVestiges {
  // The undo stack of RemoveCandidates, which no command calls: entries 1..UndoCount, entry 0
  // unused. A history of the solving game is a list of positions instead.
  std::vector<std::int16_t> UndoDigit;
  std::vector<std::int16_t> UndoCell;
  std::vector<std::int16_t> UndoRowMask;     // bit k: removed from the k-th cell of the row
  std::vector<std::int16_t> UndoColumnMask;  // bit k: removed from the k-th cell of the column
  std::vector<std::int16_t> UndoCageMask;    // bit k: removed from CageCells[cage - 1][k]
  std::int16_t UndoCount = 0;
  CellDigits CellList{};  // read by RemoveCandidates; nothing fills it

  bool Finished = false;         // kept up to date; CommandSolution's enabled state decides
  bool Command1Pressed = false;  // set by the spare button
};

// The spare text box, not shown. Its selection is a caret position and a length.
class SpareText {
 public:
  const std::string& Text() const { return text_; }
  // Cut to the text.
  void Select(std::size_t start, std::size_t length);
  // Leaves the caret behind the text put in; true when the text has changed.
  bool ReplaceSelection(const std::string& text);

 private:
  std::string text_;
  std::size_t selectionStart_ = 0;
  std::size_t selectionLength_ = 0;
};

}  // namespace tessel
