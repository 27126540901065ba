#include "hints/techniques.h"

#include "hints/hint_result.h"
#include "hints/pattern_search.h"

namespace tessel {

bool HintTechniques::NakedSingle() {
  const auto cell = FindNakedSingle(state_, state_.Candidates);
  if (cell) WriteNakedSingle(state_, *cell);
  return cell.has_value();
}

bool HintTechniques::HiddenSingle() {
  const auto find = FindHiddenSingle(state_, state_.Candidates);
  if (find) WriteHiddenSingle(state_, *find);
  return find.has_value();
}

bool HintTechniques::PointingPair() {
  const auto find = FindPointingPair(state_, state_.Candidates);
  if (find) WritePointingPair(state_, *find);
  return find.has_value();
}

bool HintTechniques::BoxLine() {
  const auto find = FindBoxLine(state_, state_.Candidates);
  if (find) WriteBoxLine(state_, *find);
  return find.has_value();
}

bool HintTechniques::NakedHidden(Subset Naked, CountSubset count) {
  const auto find = FindSubset(state_, state_.Candidates, Naked, count);
  if (find) WriteSubset(state_, *find, Naked);
  return find.has_value();
}

bool HintTechniques::XWing() {
  const auto find = FindFish(state_, state_.Candidates, 2);
  if (find) WriteFish(state_, *find, HintCode::XWingRows);
  return find.has_value();
}

bool HintTechniques::SwordFish() {
  const auto find = FindFish(state_, state_.Candidates, 3);
  if (find) WriteFish(state_, *find, HintCode::SwordFishRows);
  return find.has_value();
}

}  // namespace tessel
