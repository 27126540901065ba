// How the board must look in each stage of a puzzle's making and playing, as the board painter
// takes it. Knows the puzzle and the game, and nothing of the running program.
#pragma once

#include <functional>
#include <optional>

#include "core/form.h"
#include "core/game_state.h"
#include "tests/e2e/expected_game.h"
#include "tests/fakes/recording_view.h"

namespace tessel {

class ExpectedBoard {
 public:
  // Before the first Saw.
  static ExpectedBoard Empty();
  // The cages, and every mark.
  static ExpectedBoard Sawn(const PuzzleRecord& puzzle);
  // One mark in each cell: the solution's digit.
  static ExpectedBoard Filled(const PuzzleRecord& puzzle);
  // The givens alone.
  static ExpectedBoard Concealed(const PuzzleRecord& puzzle);
  // The captions of the row and column of `redCaptions` are red.
  static ExpectedBoard Playing(const ExpectedGame& game,
                               std::optional<int> redCaptions = std::nullopt);
  // After the button "Solution".
  static ExpectedBoard Solved(const PuzzleRecord& puzzle);

  ExpectedBoard(const ExpectedBoard&) = delete;
  ExpectedBoard& operator=(const ExpectedBoard&) = delete;

  const Form& Display() const { return form_; }
  const GameState& State() const { return state_; }

 private:
  // What stands in a cell, 0 for nothing; whether a mark is seen.
  using DigitOf = std::function<int(int cell)>;
  using ShowsMark = std::function<bool(int cell, int digit)>;

  ExpectedBoard();
  ExpectedBoard(const PuzzleRecord& puzzle, bool solving, const DigitOf& digitOf,
                const ShowsMark& showsMark, std::optional<int> redCaptions = std::nullopt);

  RecordingView view_;
  Form form_{view_};
  GameState state_;
};

}  // namespace tessel
