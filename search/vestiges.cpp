// Steps of the search that exist by name alone: the search takes them in fused passes.
#include "search/exact_cover_search.h"

namespace tessel {

bool ExactCoverSearch::DLXNakedSingle(int Ptr) {
  WritePositionKeys(Ptr);
  SearchLevel& level = Levels[Depth];
  int k = 0;
  while (k <= Ptr && CandidateCount(level.Candidates[level.Order[k]]) != 1) ++k;
  if (k > Ptr) return false;
  kernels::PropagateSingles(level, tables_, BoardStatus::OfSingle(k, level.Order[k]), Ptr, 1,
                            scratch_);
  kernels::CommitSingles(scratch_, Ptr, level);
  return true;
}

void ExactCoverSearch::DLXRemoveCandidates(int Cell, int Candidate, int RemovePtr) {
  WritePositionKeys(RemovePtr);
  PlaceTrial(Cell, Candidate);
}

}  // namespace tessel
