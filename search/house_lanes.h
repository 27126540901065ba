// The houses of each cell: as rows of 16-bit lanes, one for each cell of the board, and as sets.
#pragma once

#include "core/cell_set.h"
#include "search/search_level.h"

namespace tessel {

// The three masks of an entry of the undo log, 9 bits each, in two 16-bit words.
struct LogWords {
  std::int16_t first = 0;   // the row mask below the lower 7 bits of the column mask
  std::int16_t second = 0;  // the cage mask below the upper 2 bits of the column mask

  static constexpr LogWords Of(int row, int column, int cage) {
    return {static_cast<std::int16_t>(row | column << kSide),
            static_cast<std::int16_t>(cage | (column >> kColumnBits) << kSide)};
  }
  constexpr Mask RowMask() const { return first & kAllCandidates; }
  constexpr Mask ColumnMask() const {
    return static_cast<Mask>(static_cast<std::uint16_t>(first) >> kSide | (second >> kSide)
                                                                              << kColumnBits);
  }
  constexpr Mask CageMask() const { return second & kAllCandidates; }

  static constexpr int kColumnBits = 16 - kSide;
};

static_assert(LogWords::Of(0x155, 0x1AA, 0x0F3).RowMask() == 0x155);
static_assert(LogWords::Of(0x155, 0x1AA, 0x0F3).ColumnMask() == 0x1AA);
static_assert(LogWords::Of(0x155, 0x1AA, 0x0F3).CageMask() == 0x0F3);

struct LogLanes {
  Lanes first{};
  Lanes second{};
};

// Lanes of which only the cell's own is set, to `kNumber`.
template <std::int16_t kNumber>
const std::int16_t* OneLane(int cell) {
  // A window of kLaneCount lanes slides over a single set one.
  static constexpr auto lanes = [] {
    std::array<std::int16_t, 2 * kLaneCount> all{};
    all[kLaneCount] = kNumber;
    return all;
  }();
  return lanes.data() + (kLaneCount - cell);
}

class HouseLanes {
 public:
  // All candidates at the other cells that share a house with the cell, none elsewhere.
  const Lanes& Peers(int cell) const { return peers_[cell]; }
  // For each cell, those that share a house with it, and the cell.
  const PerCell<CellSet>& Houses() const { return houses_; }
  // The bit by which the undo log names each of these: in the row mask (bit c in column c), else in
  // the column mask (bit r in row r), else in the cage mask (bit k for the cage's k-th cell).
  const LogLanes& Log(int cell) const { return log_[cell]; }

  // Follows the layout when it has changed. CageCells must be derived from
  // CageOfCell. A cell outside all cages shares none.
  void Follow(const GameState& state);

 private:
  void AddCage(int cell, const HouseCells& cage);

  PerCell<Lanes> peers_{};
  PerCell<CellSet> houses_{};
  PerCell<LogLanes> log_{};
  PerCell<std::int16_t> layout_{};
  bool followed_ = false;
};

}  // namespace tessel
