// The depth-first search over candidate masks that fills layouts and decides uniqueness. It is a
// backtracking search with naked-single propagation: in spite of its given name, there is no exact
// cover matrix and there are no dancing links. docs/search.md explains it as a whole.
//
// A trial level holds a run of trial placements, undone one by one through its log; above it a
// singles level holds the placements that they forced and is only ever dropped whole. A level is
// opened by one copy of the level below it.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/layout.h"
#include "core/progress.h"
#include "search/search_level.h"
#include "search/singles_kernels.h"

namespace tessel {

// What the drivers of the search decide differently.
class SearchDriver {
 public:
  virtual ~SearchDriver() = default;

  // Asked once an iteration, before anything is placed; false ends the search.
  virtual bool BeforeIteration() = 0;
  // A full solution stands in the top level; true looks for the next one.
  virtual bool ContinueAfterSolution() = 0;

  // True when this driver wants TrialPlaced and SinglePlaced; false by default. While false, the
  // search may propagate in scratch memory and open a level only if no contradiction appears. The
  // results and iteration counts are the same.
  bool ObservesPlacements() const { return observesPlacements_; }
  // `pos`: the position of the placed cell, 0..80.
  virtual void TrialPlaced(int pos, int cell);
  // `pos`: the position below the placed cell, -1..79.
  virtual void SinglePlaced(int pos, int cell);

 protected:
  void ObservePlacements(bool observe) { observesPlacements_ = observe; }

 private:
  bool observesPlacements_ = false;
};

enum class SearchResult : std::uint8_t {
  kSolved,     // the driver was content with a solution, which stands in the top level
  kStopped,    // the driver ended it before an iteration
  kExhausted,  // there are no further solutions
};

class ExactCoverSearch {
 public:
  // Builds the tables of the layout, which need not live on.
  explicit ExactCoverSearch(const Layout& layout);

  // Searches this layout from now on; what was found in another one is dropped.
  void Use(const Layout& layout);

  // True exactly when the givens, any 81 numbers of which those up to 0 mean empty, have one and
  // only one completion. Tells `progress` of each iteration, but does not stop for it.
  bool UniqueSolution(const CellDigits& givens, Progress& progress = Unwatched());

  // Prepares a search of the empty layout that takes the cells in `order`, a permutation of 0..80.
  void StartEmpty(const CellOrder& order);
  // Searches from where the search stands: after StartEmpty or, for another solution, after a Run
  // that ended with kSolved.
  SearchResult Run(SearchDriver& driver);

  // Reverts the newest entry of the top level's undo log. The placed cell's own candidates were
  // never touched.
  void DLXUndo();

  // Vestiges: steps of the search by their given names, on the top level. The search itself takes
  // them in fused passes and never calls these two; changing them changes nothing.
  //
  // Places the first cell at positions 0..Ptr that has one candidate left, removes the digit from
  // its unfilled peers without logging it, and moves the cell to position Ptr. False when there is
  // none.
  bool DLXNakedSingle(int Ptr);
  // Writes `Candidate` into `Cell` and removes it from the cells at positions 0..RemovePtr that
  // share a house with it, which a new undo entry names: a cell that shares the row in the row mask
  // alone, else one that shares the column in the column mask alone.
  void DLXRemoveCandidates(int Cell, int Candidate, int RemovePtr);

  // The level that the search works on; where a Run has ended, what it has found.
  const SearchLevel& Top() const { return Levels[Depth]; }
  // Iterations of the search loop so far, of all searches.
  std::int64_t Iterations() const { return iterations_; }

 private:
  friend class SearchProbe;  // of the tests

  void Reset();
  void StartAt(int pos);
  void WritePositionKeys(int lastUnfilled);
  void StartFromGivens(const CellDigits& givens);
  void Step(SearchDriver& driver);
  void ChooseCell();
  BoardStatus TryFirstDigit();
  std::optional<BoardStatus> TryNextDigit();
  void PropagateSingles(SearchDriver& driver, BoardStatus status);
  BoardStatus PlaceSinglesOneByOne(SearchDriver& driver, BoardStatus status);
  BoardStatus PlaceSinglesAtOnce(BoardStatus status);
  void CommitSingles();
  void OpenLevel();
  BoardStatus PlaceTrial(int cell, int digit);
  BoardStatus ReplaceTrial(int cell, int digit);
  std::int16_t& Pos() { return levelPos_[Depth]; }

  CageNumbers cages_{};  // the layout that the tables were built for
  PeerTables tables_;
  SinglesScratch scratch_;

  std::vector<SearchLevel> Levels;
  std::int16_t Depth = 0;  // of the top level in Levels
  // For each level, the position in Order of the cell being decided (-1: every cell is filled), and
  // what it was when the level was opened.
  std::vector<std::int16_t> levelPos_;
  std::vector<std::int16_t> levelStart_;
  std::int64_t iterations_ = 0;
};

// Whether the givens have one and only one completion. Asks a search of its own: for many questions
// about one layout, keep an ExactCoverSearch.
bool HasUniqueSolution(const Layout& layout, const Grid& givens);

}  // namespace tessel
