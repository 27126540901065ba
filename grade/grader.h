// Grades puzzles of which nothing is known yet.
#pragma once

#include <string_view>
#include <tl/expected.hpp>

#include "core/puzzle.h"
#include "grade/grade.h"
#include "solver/solver.h"

namespace tessel::grade {

// Why a puzzle has no grade.
enum class GradeFault : std::uint8_t { kNoSolution, kSeveralSolutions };

// "it has no solution" or "it has several solutions".
std::string_view MessageOf(GradeFault fault);

// Not to be shared by threads: its solver is used again for every puzzle.
class Grader {
 public:
  tl::expected<Grade, GradeFault> GradeOf(const Layout& layout, const Grid& givens);
  tl::expected<Grade, GradeFault> GradeOf(const Puzzle& puzzle) {
    return GradeOf(puzzle.layout, puzzle.givens);
  }

 private:
  solver::Solver solver_{Layout::Regular()};
};

}  // namespace tessel::grade
