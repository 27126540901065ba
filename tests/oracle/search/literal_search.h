// The search of search/ written out position by position: every step scans the lists it speaks of,
// every level is a whole copy. The measure of the engine's results, iterations and speed.
#pragma once

#include <functional>
#include <limits>
#include <optional>
#include <vector>

#include "tests/oracle/search/oracle_board.h"

namespace tessel::oracle {

struct LiteralLevel {
  Grid Digit{};
  Grid Order{};
  Grid Candidates{};
  Grid LastChoice{};
  Grid UndoDigit{};  // the log: entries 1..UndoCount
  Grid UndoCell{};
  Grid UndoColumnMask{};
  Grid UndoRowMask{};
  Grid UndoCageMask{};
  std::int16_t UndoCount = 0;
};

class LiteralSearch {
 public:
  enum class End : std::uint8_t { kSolved, kStopped, kExhausted, kLimit };
  // Whether UniqueSolution refuses clashing givens, values above 9, and singles that leave an empty
  // cell without a candidate before its search begins.
  enum class Repairs : std::uint8_t { kOff, kOn };
  // The position, the cell, and 1 for a trial placement or 2 for a single.
  using Drawing = std::function<void(int ptr, int cell, int mode)>;

  static constexpr long kNoLimit = std::numeric_limits<long>::max();

  explicit LiteralSearch(const Layout& layout);

  // Searches the empty layout, whose cells are taken in `order`. kLimit at the pump after `limit`
  // others: passes that only drop a level are not limited. The solution of kSolved stands in
  // Levels[Depth].Digit.
  End GenerateTessel(const Grid& order, long limit = kNoLimit);
  // Nothing when, without repairs, the steps break down: they choose a cell without a candidate.
  std::optional<bool> UniqueSolution(const Grid& workGrid, Repairs repairs = Repairs::kOn);

  bool DLXNakedSingle(int Ptr);
  void DLXRemoveCandidates(int Cell, int Candidate, int RemovePtr);
  void DLXUndo();

  std::vector<LiteralLevel> Levels{1};
  std::int16_t Depth = 0;

  long iterations = 0;         // passes of the search loop, of all calls
  long pumps = 0;              // of all calls
  bool StopRequested = false;  // looked at by GenerateTessel alone
  std::function<void()> onPump;
  Drawing draw;  // called by GenerateTessel alone

 private:
  enum class Driver : std::uint8_t { kGenerate, kUnique };
  enum class Ending : std::uint8_t { kContent, kStopped, kExhausted, kLimit, kBrokenDown };

  void Reset();
  int TakeGivens(const Grid& workGrid);
  bool Clash(const Grid& workGrid) const;
  Ending SearchLoop(Driver driver, long limit);
  bool PlaceFirstDigit();
  bool PlaceNextDigit();
  void PropagateSingles(Driver driver);
  void OpenLevel();
  bool SomeCellIsEmpty(int ptr) const;
  void Pump();
  void Draw(Driver driver, int ptr, int cell, int mode) const;
  LiteralLevel& Top() { return Levels[Depth]; }
  const LiteralLevel& Top() const { return Levels[Depth]; }
  std::int16_t& Pos() { return levelPos_[Depth]; }
  std::int16_t& Start() { return levelStart_[Depth]; }

  Layout layout_;
  std::array<std::int16_t, 512> bitCount_{};
  std::vector<std::int16_t> levelPos_{0};
  std::vector<std::int16_t> levelStart_{0};
  int solutions_ = 0;
};

}  // namespace tessel::oracle
