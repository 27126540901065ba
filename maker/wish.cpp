#include "maker/wish.h"

#include <algorithm>

namespace tessel::maker {

bool Wish::LooksAtGrade() const {
  Wish otherwise;
  otherwise.mostGivens = mostGivens;
  return *this != otherwise;
}

bool Wish::AcceptsGivens(const Grid& givens) const {
  return !mostGivens || kCellCount - std::ranges::count(givens, 0) <= *mostGivens;
}

bool Wish::Accepts(const grade::Grade& grade) const {
  return easiest <= grade.level && grade.level <= hardest &&  //
         lowestScore <= grade.score && grade.score <= highestScore &&
         (!step || grade.StepsOf(*step) > 0);
}

}  // namespace tessel::maker
