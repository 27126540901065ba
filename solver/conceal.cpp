#include "solver/conceal.h"

#include "core/cell_set.h"

namespace tessel::solver {

namespace {

// So many refusals in a row, and the cells are taken in ascending order. The window's numbers,
// though no puzzle gets there: 61 givens would remain none of which can go, and after 41 refused
// pairs nothing remains to be tried.
constexpr int kMaxRefusalsOfSingles = 61;
constexpr int kMaxRefusalsOfPairs = 41;

int DrawIndex(RandomStream& random, int n) {
  return static_cast<int>(random.Below(static_cast<unsigned>(n)));
}

template <typename Random>
class Concealment {
 public:
  Concealment(Solver& solver, const Grid& solution, ConcealRule rule, Random& random)
      : solver_(solver), random_(random), rule_(rule), solution_(solution), givens_(solution) {
    solver_.GiveAll(solution);
  }

  Grid Run(int fewest) {
    while (givenCount_ > fewest && !untried_.Empty()) {
      const int cell = Draw();
      untried_ = untried_ - ConcealedWith(cell);
      if (TakeOut(cell)) {
        refusals_ = 0;
      } else {
        ++refusals_;
        inOrder_ = inOrder_ || refusals_ >= MostRefusals();
      }
    }
    return givens_;
  }

 private:
  int MostRefusals() const {
    return rule_ == ConcealRule::kPairs ? kMaxRefusalsOfPairs : kMaxRefusalsOfSingles;
  }

  CellSet ConcealedWith(int cell) const {
    const CellSet itself = CellSet::Of(cell);
    return rule_ == ConcealRule::kPairs ? itself | CellSet::Of(HalfTurnOf(cell)) : itself;
  }

  int Draw() {
    if (inOrder_) return untried_.First();
    int cell = DrawIndex(random_, kCellCount);
    while (!untried_.Contains(cell)) cell = DrawIndex(random_, kCellCount);
    return cell;
  }

  // A pair goes when its cells can go one after the other.
  bool TakeOut(int cell) {
    const int mirror = HalfTurnOf(cell);
    if (rule_ == ConcealRule::kSingle || cell == mirror) return TakeOutOne(cell);
    if (!TakeOutOne(mirror)) return false;
    if (TakeOutOne(cell)) return true;
    solver_.PutBack(mirror);
    ++givenCount_;
    givens_[mirror] = solution_[mirror];
    return false;
  }

  bool TakeOutOne(int cell) {
    if (solver_.HasOtherCompletion(cell)) return false;
    solver_.TakeOut(cell);
    givens_[cell] = 0;
    --givenCount_;
    return true;
  }

  Solver& solver_;
  Random& random_;
  ConcealRule rule_;
  const Grid& solution_;
  Grid givens_;
  int givenCount_ = kCellCount;
  CellSet untried_ = kAllCells;
  int refusals_ = 0;  // in a row
  bool inOrder_ = false;
};

}  // namespace

Grid Conceal(Solver& solver, const Grid& solution, ConcealRule rule, RandomSource& random,
             int fewest) {
  return Concealment(solver, solution, rule, random).Run(fewest);
}

Grid Conceal(Solver& solver, const Grid& solution, ConcealRule rule, RandomStream& random,
             int fewest) {
  return Concealment(solver, solution, rule, random).Run(fewest);
}

}  // namespace tessel::solver
