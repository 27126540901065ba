// What long work tells while it is under way, and the one thing it asks. The window pumps its
// events and paints; a tool may count, or watch nothing.
#pragma once

#include <cstdint>

#include "core/board.h"

namespace tessel {

// A digit that the search has just placed.
struct Placement {
  enum class Kind : std::uint8_t {
    kTrial,   // chosen among several; `position` is the cell's own
    kSingle,  // forced; `position` is the one below the cell's own, -1 at the lowest
  };

  Kind kind = Kind::kTrial;
  int cell = 0;      // 0..80
  int position = 0;  // in the search's order of cells
};

// Nothing is done by default: override what is to be watched. Work calls it from its own thread.
class Progress {
 public:
  virtual ~Progress() = default;

  // Called once for each step of a walk and each iteration of a search, before it.
  virtual void Step() {}
  // True asks the work to end without a result. Asked after each Step, except while sawing, where
  // it is asked between two attempts, and in a uniqueness question, which is always answered.
  virtual bool StopRequested() const { return false; }

  // Sawing: the cell has joined the cage, 1..9, for the rest of the attempt.
  virtual void CellClaimed(int /*cell*/, int /*cage*/) {}

  // Filling: asked in each iteration, after Step. While it is true, DigitPlaced is called; the
  // placements and their results are the same either way.
  virtual bool WatchesPlacements() const { return false; }
  virtual void DigitPlaced(const Placement& /*placement*/) {}

  // Concealing: these givens, with another cell or pair hidden, are about to be judged.
  virtual void HidingTried(const CellDigits& /*givens*/) {}
  // The judgement is made: these givens remain.
  virtual void HidingDecided(const CellDigits& /*givens*/) {}
};

// Watches nothing and never stops; it has no state, so that any number of threads may share it.
inline Progress& Unwatched() {
  static Progress unwatched;
  return unwatched;
}

}  // namespace tessel
