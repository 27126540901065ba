// Which of the puzzles that are made are wanted.
#pragma once

#include <limits>
#include <optional>

#include "grade/grade.h"
#include "maker/recipe.h"

namespace tessel::maker {

struct Wish {
  grade::Level easiest = grade::Level::kEasy;
  grade::Level hardest = grade::Level::kBeyond;
  int lowestScore = 0;
  int highestScore = std::numeric_limits<int>::max();
  std::optional<grade::StepKind> step{};  // must occur at least once
  // Not met by puzzles that need more: their recipe asked for so many givens in vain.
  std::optional<int> mostGivens{};

  // Whether the grade of a puzzle can decide; where it cannot, none need be made.
  bool LooksAtGrade() const;
  // Whether a puzzle passes that no grade is needed to refuse.
  bool AcceptsGivens(const Grid& givens) const;
  bool Accepts(const grade::Grade& grade) const;

  friend bool operator==(const Wish&, const Wish&) = default;
};

}  // namespace tessel::maker
