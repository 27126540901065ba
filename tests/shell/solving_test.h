// A started program in which the known puzzle has just been opened for solving.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "core/names.h"
#include "tests/fakes/test_program.h"
#include "tests/shell/known_puzzle.h"
#include "tests/shell/snapshot.h"

namespace tessel {

// The digits whose marks the cell shows, whatever their colour.
inline Mask ShownMarks(const Form& form, int cell) {
  int shown = 0;
  for (int digit = 1; digit <= kSide; ++digit) {
    if (form.Mark(cell, digit).visible) shown |= BitOf(digit);
  }
  return static_cast<Mask>(shown);
}

class SolvingTest : public testing::Test {
 protected:
  // Cells of the puzzle: A1 = 1 is a given; A2 and A3 are empty, with solutions 2 and 3.
  static constexpr int kGiven = 0;
  static constexpr int kEmpty = 1;
  static constexpr int kOtherEmpty = 2;
  static_assert(IsKnownGiven(kGiven) && !IsKnownGiven(kEmpty) && !IsKnownGiven(kOtherEmpty));

  explicit SolvingTest(SystemCalls& system = UnthreadedCalls::Shared()) : program(1, system) {
    program.Tick(CheckBox::MakeRegular);
    program.MakePuzzle();
    program.Probe().SavedPuzzle = KnownPuzzle();
    program.main.Click(Button::CommandSolve);
    TakeSounds();
  }

  void Left(int cell, int digit) { program.ClickMark(cell, digit, MouseButton::kLeft); }
  void Right(int cell, int digit) { program.ClickMark(cell, digit, MouseButton::kRight); }
  void Middle(int cell, int digit = 5) { program.ClickMark(cell, digit, MouseButton::kMiddle); }
  void Untick() { program.Tick(CheckBox::CheckPencilmarks, false); }

  const Form& Display() const { return program.Display(); }
  const GameState& State() const { return program.State(); }
  GameState& Probe() { return program.Probe(); }
  int Board(int cell) { return State().PlayBoard.Board[cell]; }
  Mask Candidates(int cell) { return State().Candidates[cell]; }
  Mask Shown(int cell) { return ShownMarks(Display(), cell); }
  bool BoardIsOpen() {
    EXPECT_EQ(Display().Of(Button::CommandHint).enabled,
              Display().Of(Button::CommandSolution).enabled);
    EXPECT_EQ(State().Finished, !Display().Of(Button::CommandSolution).enabled);
    return Display().Of(Button::CommandSolution).enabled;
  }

  // The numbers of the sounds played since the last call.
  std::vector<std::int32_t> TakeSounds() { return std::exchange(program.player.played, {}); }

  template <typename Act>
  void ExpectNothingHappens(Act act) {
    const Snapshot before(program);
    const long changes = program.view.changes;
    act();
    EXPECT_EQ(Snapshot(program), before);
    EXPECT_EQ(program.view.changes, changes) << "not even a redraw";
  }

  // Has the hint button announce a digit for the cell, so that it reads "Show Me".
  void Announce(int cell) {
    Untick();
    const MaskBoard kept = State().Candidates;
    Probe().Candidates.fill(0);
    Probe().Candidates[cell] = BitOf(1);
    program.main.Click(Button::CommandHint);
    Probe().Candidates = kept;
    TakeSounds();
    ASSERT_EQ(State().AssignmentPending, Bool16::kTrue);
    ASSERT_EQ(Display().Of(Button::CommandHint).caption, "Show Me");
  }
  void ExpectPending(bool pending) {
    EXPECT_EQ(State().AssignmentPending, pending ? Bool16::kTrue : Bool16::kFalse);
    EXPECT_EQ(Display().Of(Button::CommandHint).caption, pending ? "Show Me" : "Hint");
  }
  // The captions of the lines that are not black.
  std::string RedCaptions() {
    std::string red;
    for (int line = 0; line < kSide; ++line) {
      if (Display().LabelRow(line) == kHighlightRed) red += RowName(line);
    }
    for (int line = 0; line < kSide; ++line) {
      if (Display().LabelColumn(line) == kHighlightRed) red += ColumnName(line);
    }
    return red;
  }
  // Places the right digit in every empty cell but `spared`.
  void FillAllBut(int spared) {
    for (int cell = 0; cell < kCellCount; ++cell) {
      if (cell != spared && Board(cell) == 0) Left(cell, KnownSolution(cell));
    }
    TakeSounds();
  }

  TestProgram program;
};

}  // namespace tessel
