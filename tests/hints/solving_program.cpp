#include "tests/hints/solving_program.h"

#include <gtest/gtest.h>

#include "tests/core/layouts.h"

namespace tessel {

SolvingProgram::SolvingProgram() {
  Tick(CheckBox::MakeRegular);
  MakePuzzle();
  main.Click(Button::CommandSolve);
  player.played.clear();
}

void SolvingProgram::Play(const PuzzleRecord& puzzle) {
  State().SavedPuzzle = puzzle;
  SetLayout(State(), LayoutOfCages(puzzle.CageMap));
  main.Click(Button::CommandRestart);
  player.played.clear();
}

void SolvingProgram::Play(const RecordedBoard& board) {
  Play(board.puzzle);
  SetMarks(board.marks);
}

std::string SolvingProgram::Hint() {
  player.played.clear();
  main.Click(Button::CommandHint);
  sounds.assign(player.played.begin(), player.played.end());
  return Display().TextHint();
}

namespace {

bool IsRed(Rgb colour) {
  EXPECT_TRUE(colour == kHighlightRed || colour == kBlack);
  return colour == kHighlightRed;
}

}  // namespace

std::string SolvingProgram::Red() const {
  std::string rows;
  std::string columns;
  for (std::size_t line = 0; line < kSide; ++line) {
    if (IsRed(Display().LabelRow(static_cast<int>(line)))) rows += "ABCDEFGHJ"[line];
    if (IsRed(Display().LabelColumn(static_cast<int>(line)))) columns += "123456789"[line];
  }
  return (rows.empty() ? "-" : rows) + " " + (columns.empty() ? "-" : columns);
}

PuzzleRecord SolvedPuzzle() {
  PuzzleRecord puzzle;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int row = RowOf(cell);
    const int shift = 3 * (row % 3) + row / 3;
    puzzle.Solution[cell] = static_cast<std::uint8_t>(1 + (ColumnOf(cell) + shift) % kSide);
    puzzle.CageMap[cell] = static_cast<std::uint8_t>(3 * (row / 3) + ColumnOf(cell) / 3 + 1);
  }
  puzzle.Board = puzzle.Solution;
  return puzzle;
}

PuzzleRecord EmptyPuzzle() {
  PuzzleRecord puzzle = SolvedPuzzle();
  puzzle.Board.fill(0);
  return puzzle;
}

}  // namespace tessel
