// The concealing of search/ written out, with the literal search deciding uniqueness.
#pragma once

#include "core/random_source.h"
#include "tests/oracle/search/literal_search.h"

namespace tessel::oracle {

class LiteralConceal {
 public:
  enum class Mode : std::uint8_t { kSingle, kPairs };

  LiteralConceal(const Layout& layout, RandomSource& random) : search(layout), random_(random) {}

  // The puzzle that is left of the complete solution; nothing when StopRequested was set, which is
  // cleared. The random source is used as it stands: seed it first.
  std::optional<Grid> ConcealCells2ValidTessel(const Grid& solution, Mode mode);

  LiteralSearch search;  // counts the iterations and the pumps
  bool StopRequested = false;
  long passes = 0;          // of all calls; those that choose no cell to conceal included
  long calls = 0;           // of UniqueSolution, of all calls
  bool sequential = false;  // whether the last call has gone over to ascending order
  // The cell chosen, the givens left and whether they were unique.
  std::function<void(int cell, const Grid& givens, bool unique)> onCall;

 private:
  bool Finished() const;
  bool ChooseCell();
  bool Choosable(int cell) const { return WorkGrid[cell] > 0 && Tryable[cell]; }
  void Refuse();
  void Rebuild();

  RandomSource& random_;
  Mode mode_ = Mode::kSingle;
  Grid FullGrid{};
  Grid WorkGrid{};
  std::array<bool, 81> Tryable{};
  std::array<int, 59> ConcealedList{};  // 1..58; pairs use the even positions
  int ConcealedCount = 0;
  int KeptCount = 0;
  int FailStreak = 0;
  int ScanPos = -1;
  int Cell = 0;
};

}  // namespace tessel::oracle
