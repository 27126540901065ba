#include "grade/grader.h"

#include "solver/fillable.h"

namespace tessel::grade {

std::string_view MessageOf(GradeFault fault) {
  return fault == GradeFault::kNoSolution ? "it has no solution" : "it has several solutions";
}

tl::expected<Grade, GradeFault> Grader::GradeOf(const Layout& layout, const Grid& givens) {
  const std::size_t solutions = solver::DecideCompletions(solver_, layout, givens).size();
  if (solutions == 0) return tl::unexpected(GradeFault::kNoSolution);
  if (solutions > 1) return tl::unexpected(GradeFault::kSeveralSolutions);
  return grade::GradeOf(layout, givens);
}

}  // namespace tessel::grade
