#include "grade/way.h"

namespace tessel::grade {

namespace {

void Write(const Layout& layout, CandidateGrid& position, Placement placed) {
  position.digits[placed.cell] = static_cast<std::uint8_t>(placed.digit);
  position.candidates[placed.cell] = 0;
  ForEach(layout.PeersOf(placed.cell), [&](int peer) {
    position.candidates[peer] = Without(position.candidates[peer], BitOf(placed.digit));
  });
}

// All steps of the easiest kind that the position offers.
std::optional<Round> NextRound(const Layout& layout, const CandidateGrid& position) {
  for (const StepKindFacts& facts : kStepKinds) {
    std::vector<Step> steps = StepsOf(facts.kind, layout, position);
    if (steps.empty()) continue;
    Round round{facts.kind, std::move(steps), position};
    for (const Step& step : round.steps) round.after = After(layout, round.after, step);
    return round;
  }
  return std::nullopt;
}

}  // namespace

CandidateGrid After(const Layout& layout, CandidateGrid position, const Step& step) {
  if (step.placement) Write(layout, position, *step.placement);
  for (const Removal& removal : step.removals) {
    Mask& candidates = position.candidates[removal.cell];
    candidates = Without(candidates, removal.digits);
  }
  return position;
}

Way WayOf(const Layout& layout, const Grid& givens) {
  Way way{StartOf(layout, givens), {}};
  while (auto round = NextRound(layout, way.End())) way.rounds.push_back(*std::move(round));
  return way;
}

Grade GradeOf(const Way& way) {
  Grade grade;
  for (const Round& round : way.rounds) {
    grade.Count(round.kind, static_cast<int>(round.steps.size()));
  }
  if (way.End().Solved()) return grade;
  grade.level = Level::kBeyond;
  grade.stuck = way.End();
  return grade;
}

}  // namespace tessel::grade
