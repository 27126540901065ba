// The depth-first search over candidate masks that fills layouts and decides uniqueness.
//
// A trial level holds a run of trial placements, undone one by one through its log; above it a
// singles level holds the placements that they forced and is only ever dropped whole. A level is
// opened by one copy of the level below it.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/game_state.h"
#include "core/view.h"
#include "search/search_level.h"
#include "search/singles_run.h"

namespace tessel {

// What the drivers of the search decide differently.
class SearchDriver {
 public:
  virtual ~SearchDriver() = default;

  // Asked once an iteration, before anything is placed; false ends the search.
  virtual bool Proceed() = 0;
  // A full solution stands in the top level; true looks for the next one.
  virtual bool ContinueAfterSolution() = 0;

  // Whether TrialPlaced and SinglePlaced are called; off until FollowPlacements. While it is off,
  // no level is opened for singles that come to a dead end: no driver could see it.
  bool FollowsPlacements() const { return followsPlacements_; }
  // `pos`: the position of the placed cell.
  virtual void TrialPlaced(int pos, int cell);
  // `pos`: the position below the placed cell.
  virtual void SinglePlaced(int pos, int cell);

 protected:
  void FollowPlacements(bool follow) { followsPlacements_ = follow; }

 private:
  bool followsPlacements_ = false;
};

enum class SearchEnd : std::uint8_t {
  kSolved,     // the driver was content with a solution, which stands in the top level
  kStopped,    // the driver refused to proceed
  kExhausted,  // there are no further solutions
};

// The procedures named DLX work on the top level, Levels[Depth].
class ExactCoverSearch {
 public:
  // The layout is read from `state`, whose BitCount must be filled.
  ExactCoverSearch(GameState& state, View& view);

  // True exactly when the givens in WorkGrid, any 81 numbers of which those up to 0 mean empty,
  // have one and only one completion. Pumps once an iteration.
  bool UniqueSolution();

  // Prepares a search of the empty layout that takes the cells in `order`, a permutation of 0..80.
  void StartEmpty(const PerCell<std::int16_t>& order);
  SearchEnd Run(SearchDriver& driver);

  // Places the first cell at positions 0..Ptr that has one candidate left, takes the digit from its
  // unfilled peers without logging it, and moves the cell to position Ptr. False when there is
  // none.
  bool DLXNakedSingle(int Ptr);
  // Writes `Candidate` into `Cell` and takes it from the cells at positions 0..RemovePtr that share
  // a house with it, which a new entry of the log names: a cell that shares the row in the row mask
  // alone, else one that shares the column in the column mask alone.
  void DLXRemoveCandidates(int Cell, int Candidate, int RemovePtr);
  // Reverts the newest entry of the log. The placed cell's own candidates were never touched.
  void DLXUndo();

  const SearchLevel& Top() const { return Levels[Depth]; }
  // Iterations of the search loop since the program started.
  std::int64_t Iterations() const { return iterations_; }

  std::vector<SearchLevel> Levels;
  std::int16_t Depth = 0;

 private:
  void Reset();
  void StartAt(int pos);
  void ReadOrder(int ptr);
  void StartFromGivens();
  void Step(SearchDriver& driver);
  void ChooseCell();
  Outlook TryFirstDigit();
  std::optional<Outlook> TryNextDigit();
  void PropagateSingles(SearchDriver& driver, Outlook outlook);
  Outlook PlaceSinglesOneByOne(SearchDriver& driver, Outlook outlook);
  Outlook PlaceSinglesAtOnce(Outlook outlook);
  void TakeSingles();
  void OpenLevel();
  Outlook PlaceTrial(int cell, int digit);
  Outlook ReplaceTrial(int cell, int digit);
  std::int16_t& Pos() { return levelPos_[Depth]; }

  GameState& state_;
  View& view_;
  // For each level, the position in Order of the cell being decided (-1: every cell is filled), and
  // what it was when the level was opened.
  std::vector<std::int16_t> levelPos_;
  std::vector<std::int16_t> levelStart_;
  std::int64_t iterations_ = 0;

  HouseLanes lanes_;
  SinglesRun run_;
};

}  // namespace tessel
