#include "shell/opened_puzzle.h"

#include "core/texts.h"
#include "shell/stage.h"

namespace tessel {

namespace {

void KeepPuzzle(GameState& state, const Puzzle& puzzle) {
  SetLayout(state, puzzle.layout);
  state.WorkGrid = DigitsOf(puzzle.solution.value());
  state.Puzzle = DigitsOf(puzzle.givens);
  state.SavedPuzzle = {puzzle.givens, *puzzle.solution, puzzle.layout.Cages()};
  state.StopRequested = false;
}

// The marks are all there, and vanish in the colour of their ground.
void ShowCell(const GameState& state, Form& form, int cell) {
  const Rgb ground = CageColourOf(state, cell);
  form.SetCellOpaque(cell, true);
  form.SetCellBackground(cell, ground);
  form.SetCellText(cell, state.Puzzle[cell]);
  form.ShowMarks(cell, kAllCandidates);
  form.SetMarksColour(cell, ground);
  for (int digit = 1; digit <= kSide; ++digit) form.SetMarkBold(cell, digit, false);
}

}  // namespace

void ShowOpenedPuzzle(GameState& state, Form& form, const Puzzle& puzzle) {
  KeepPuzzle(state, puzzle);
  for (int cell = 0; cell < kCellCount; ++cell) ShowCell(state, form, cell);
  form.SetCaption(texts::kProgram);
  form.SetNotice("");
  form.SetNews("");
  ShowStage(form, Stage::kPuzzleConcealed);
}

}  // namespace tessel
