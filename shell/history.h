// The positions of a game that the player can go back and forth between.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/position.h"

namespace tessel {

// What one position of a puzzle has that another has not. A move changes a few cells, so a list of
// differences takes a tenth of the memory of a list of positions.
struct Difference {
  struct InCell {
    std::uint8_t cell = 0;
    std::uint8_t digit = 0;
    Mask candidates = 0;
    Mask candidatesBeforeEntry = 0;

    friend bool operator==(const InCell&, const InCell&) = default;
  };

  std::vector<InCell> cells;  // in increasing order
  MarkMode mode = MarkMode::kAutomatic;

  friend bool operator==(const Difference&, const Difference&) = default;
};

// What `to` has. Both must be positions of one puzzle.
Difference DifferenceTo(const Position& to, const Position& from);
// Every cell of the position.
Difference WholeOf(const Position& position);
// The position that has what the difference tells and is `from` elsewhere.
Position With(const Difference& difference, const Position& from);

// Steps without limit. `now` is always the position on the board.
class History {
 public:
  History() = default;
  // `undone`: the latest to be undone last, as `past` has the latest move last.
  History(std::vector<Difference> past, std::vector<Difference> undone)
      : past_(std::move(past)), undone_(std::move(undone)) {}

  // A step from `now` to `next`; what was undone is forgotten. Steps that change nothing are none.
  void Record(const Position& now, const Position& next);
  void Clear() { *this = {}; }

  bool CanUndo() const { return !past_.empty(); }
  bool CanRedo() const { return !undone_.empty(); }
  // The position one step away; nothing where there is none.
  std::optional<Position> Undo(const Position& now);
  std::optional<Position> Redo(const Position& now);

  const std::vector<Difference>& Past() const { return past_; }
  const std::vector<Difference>& Undone() const { return undone_; }

  friend bool operator==(const History&, const History&) = default;

 private:
  std::vector<Difference> past_;
  std::vector<Difference> undone_;
};

}  // namespace tessel
