// Draws the search through the pencil marks of the board.
#pragma once

#include "core/form.h"
#include "core/game_state.h"
#include "search/exact_cover_search.h"

namespace tessel {

enum class UpdateMode : std::int16_t {
  kTrial = 1,     // Ptr: the position of the cell just tried
  kSingle = 2,    // Ptr: the position below the single just placed
  kFinished = 3,  // the whole solution; Ptr is not looked at
};

class ProgressDrawing {
 public:
  ProgressDrawing(const GameState& state, Form& form, const ExactCoverSearch& search)
      : state_(state), form_(form), search_(search) {}

  // A mark is shown by painting it black and hidden by painting it in the cage's colour; no mark is
  // made visible or invisible here. Draws nothing when `Cell` is -1.
  void DLXUpdateGrid(int Ptr, int Cell, UpdateMode mode);

 private:
  void DrawOpenCandidates(int ptr);
  void DrawTrial(int cell);
  void DrawSingle(int cell);
  void DrawFinished();
  void PaintMark(int cell, int digit, bool shown);

  const GameState& state_;
  Form& form_;
  const ExactCoverSearch& search_;
};

}  // namespace tessel
