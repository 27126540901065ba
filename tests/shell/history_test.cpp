// Going back and forth between positions.
#include "shell/history.h"

#include <gtest/gtest.h>

#include "core/random_source.h"

namespace tessel {
namespace {

Position WithDigit(Position position, int cell, int digit) {
  position.PlayBoard.Board[cell] = static_cast<std::uint8_t>(digit);
  position.CandidatesBeforeEntry[cell] = position.Candidates[cell];
  position.Candidates[cell] = 0;
  return position;
}

Position RandomPosition(RandomSource& random) {
  Position position;
  for (int cell = 0; cell < kCellCount; ++cell) {
    position.PlayBoard.Board[cell] = static_cast<std::uint8_t>(DrawIndex(random, kSide + 1));
    position.Candidates[cell] = static_cast<Mask>(DrawIndex(random, kAllCandidates + 1));
    position.CandidatesBeforeEntry[cell] = static_cast<Mask>(DrawIndex(random, kAllCandidates + 1));
  }
  if (DrawIndex(random, 2) == 0) position.PencilmarkMode = MarkMode::kNotUpdated;
  return position;
}

TEST(Difference, LeadsToThePositionThatItWasTakenFrom) {
  SeededRandom random(7);
  for (int pair = 0; pair < 200; ++pair) {
    const Position from = RandomPosition(random);
    const Position to = RandomPosition(random);
    EXPECT_EQ(With(DifferenceTo(to, from), from), to);
  }
}

TEST(Difference, HoldsOnlyTheCellsThatDiffer) {
  const Position first;
  const Difference difference = DifferenceTo(WithDigit(first, 17, 4), first);
  ASSERT_EQ(difference.cells.size(), 1U);
  EXPECT_EQ(difference.cells[0], (Difference::InCell{17, 4, 0, 0}));
  EXPECT_TRUE(DifferenceTo(first, first).cells.empty());
}

TEST(History, StartsWithoutSteps) {
  History history;
  EXPECT_FALSE(history.CanUndo());
  EXPECT_FALSE(history.CanRedo());
  EXPECT_FALSE(history.Undo({}).has_value());
  EXPECT_FALSE(history.Redo({}).has_value());
}

TEST(History, GoesBackAndForth) {
  const Position first;
  const Position second = WithDigit(first, 3, 8);
  const Position third = WithDigit(second, 4, 1);
  History history;
  history.Record(first, second);
  history.Record(second, third);
  EXPECT_EQ(history.Undo(third), second);
  EXPECT_TRUE(history.CanRedo());
  EXPECT_EQ(history.Undo(second), first);
  EXPECT_FALSE(history.CanUndo());
  EXPECT_EQ(history.Redo(first), second);
  EXPECT_EQ(history.Redo(second), third);
  EXPECT_FALSE(history.CanRedo());
  EXPECT_TRUE(history.CanUndo());
}

TEST(History, MoveAfterAnUndoForgetsWhatWasUndone) {
  const Position first;
  const Position second = WithDigit(first, 3, 8);
  History history;
  history.Record(first, second);
  history.Undo(second);
  const Position other = WithDigit(first, 5, 5);
  history.Record(first, other);
  EXPECT_FALSE(history.CanRedo());
  EXPECT_EQ(history.Undo(other), first);
}

TEST(History, WhatChangesNothingIsNoStep) {
  const Position first;
  const Position second = WithDigit(first, 3, 8);
  History history;
  history.Record(first, first);
  EXPECT_FALSE(history.CanUndo());
  history.Record(first, second);
  history.Undo(second);
  history.Record(first, first);
  EXPECT_TRUE(history.CanRedo());
}

TEST(History, ModeOfTheMarksIsPartOfAStep) {
  const Position first;
  Position second;
  second.PencilmarkMode = MarkMode::kNotUpdated;
  History history;
  history.Record(first, second);
  EXPECT_EQ(history.Undo(second), first);
  EXPECT_EQ(history.Redo(first), second);
}

TEST(History, ClearForgetsBothWays) {
  History history;
  const Position second = WithDigit({}, 3, 8);
  history.Record({}, second);
  history.Record(second, {});
  history.Undo({});
  history.Clear();
  EXPECT_EQ(history, History());
}

}  // namespace
}  // namespace tessel
