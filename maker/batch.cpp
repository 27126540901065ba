#include "maker/batch.h"

namespace tessel::maker {

std::vector<Made> BatchMaker::Make(std::uint64_t first, std::uint64_t count) {
  std::vector<Made> wanted;
  for (std::uint64_t index = first; index < first + count; ++index) {
    if (auto made = MakeOne(index)) wanted.push_back(*std::move(made));
  }
  return wanted;
}

std::optional<Made> BatchMaker::MakeOne(std::uint64_t index) {
  Made made{index, maker_.Make(order_.seed, index), std::nullopt};
  if (!order_.wish.AcceptsGivens(made.puzzle.givens)) return std::nullopt;
  if (!order_.graded && !order_.wish.LooksAtGrade()) return made;
  made.grade = grade::GradeOf(made.puzzle.layout, made.puzzle.givens);
  if (!order_.wish.Accepts(*made.grade)) return std::nullopt;
  return made;
}

}  // namespace tessel::maker
