#include "tests/e2e/expected_board.h"

#include "tests/core/layouts.h"

namespace tessel {
namespace {

int NoDigit(int) {
  return 0;
}
bool NoMark(int, int) {
  return false;
}

}  // namespace

ExpectedBoard::ExpectedBoard() {
  FillTables(state_);
}

ExpectedBoard::ExpectedBoard(const PuzzleRecord& puzzle, bool solving, const DigitOf& digitOf,
                             const ShowsMark& showsMark, std::optional<int> redCaptions)
    : ExpectedBoard() {
  if (redCaptions) form_.HighlightCell(*redCaptions);
  form_.ShowSolveButtons(solving);
  bool full = true;
  state_.SavedPuzzle = puzzle;
  SetLayout(state_, LayoutOfCages(puzzle.CageMap));
  for (int cell = 0; cell < kCellCount; ++cell) {
    form_.SetCellOpaque(cell, true);
    form_.SetCellBackground(cell, kCageColours[puzzle.CageMap[cell] - 1]);
    form_.SetCellText(cell, digitOf(cell));
    full = full && digitOf(cell) != 0;
    for (int digit = 1; digit <= kSide; ++digit) {
      form_.SetMarkColour(cell, digit, kBlack);
      form_.SetMarkVisible(cell, digit, showsMark(cell, digit));
    }
  }
  form_.Enable(Button::CommandSolution, !full);
}

ExpectedBoard ExpectedBoard::Empty() {
  return {};
}

ExpectedBoard ExpectedBoard::Sawn(const PuzzleRecord& puzzle) {
  return {puzzle, false, NoDigit, [](int, int) { return true; }};
}

ExpectedBoard ExpectedBoard::Filled(const PuzzleRecord& puzzle) {
  const auto isSolution = [&](int cell, int digit) { return puzzle.Solution[cell] == digit; };
  return {puzzle, false, NoDigit, isSolution};
}

ExpectedBoard ExpectedBoard::Concealed(const PuzzleRecord& puzzle) {
  return {puzzle, false, [&](int cell) { return puzzle.Board[cell]; }, NoMark};
}

ExpectedBoard ExpectedBoard::Playing(const ExpectedGame& game, std::optional<int> redCaptions) {
  return {game.Puzzle(), true, [&](int cell) { return game.Digit(cell); },
          [&](int cell, int digit) { return game.ShowsMark(cell, digit); }, redCaptions};
}

ExpectedBoard ExpectedBoard::Solved(const PuzzleRecord& puzzle) {
  return {puzzle, true, [&](int cell) { return puzzle.Solution[cell]; }, NoMark};
}

}  // namespace tessel
