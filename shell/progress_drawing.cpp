#include "shell/progress_drawing.h"

namespace tessel {

void ProgressDrawing::DLXUpdateGrid(int Ptr, int Cell, UpdateMode mode) {
  if (Cell == -1) return;
  switch (mode) {
    case UpdateMode::kTrial:
      DrawOpenCandidates(Ptr);
      DrawTrial(Cell);
      return;
    case UpdateMode::kSingle:
      DrawOpenCandidates(Ptr);
      DrawSingle(Cell);
      return;
    case UpdateMode::kFinished:
      DrawFinished();
      return;
  }
}

void ProgressDrawing::DrawOpenCandidates(int ptr) {
  const SearchLevel& level = search_.Top();
  for (int i = 0; i <= ptr; ++i) {
    const int cell = level.Order[i];
    for (int digit = 1; digit <= kSide; ++digit) {
      PaintMark(cell, digit, Holds(level.Candidates[cell], digit));
    }
  }
}

// The cell keeps showing its candidates, the one being tried in bold.
void ProgressDrawing::DrawTrial(int cell) {
  const int tried = search_.Top().Digit[cell];
  if (tried < 1 || tried > kSide) return;
  for (int digit = 1; digit <= kSide; ++digit) form_.SetMarkBold(cell, digit, digit == tried);
}

void ProgressDrawing::DrawSingle(int cell) {
  const int forced = search_.Top().Digit[cell];
  if (forced < 1 || forced > kSide) return;
  for (int digit = 1; digit <= kSide; ++digit) PaintMark(cell, digit, digit == forced);
}

void ProgressDrawing::DrawFinished() {
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int placed = search_.Top().Digit[cell];
    for (int digit = 1; digit <= kSide; ++digit) {
      form_.SetMarkBold(cell, digit, false);
      PaintMark(cell, digit, digit == placed);
    }
  }
}

void ProgressDrawing::PaintMark(int cell, int digit, bool shown) {
  form_.SetMarkColour(cell, digit, shown ? kBlack : CageColourOf(state_, cell));
}

}  // namespace tessel
