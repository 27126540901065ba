#include "shell/qt/puzzle_grade.h"

#include "grade/grader.h"

namespace tessel {

namespace {

std::optional<grade::Level> LevelOf(const PuzzleRecord& puzzle) {
  const auto layout = Layout::FromCages(puzzle.CageMap, Layout::Shape::kAny);
  if (!layout) return std::nullopt;
  Grid givens{};
  for (int cell = 0; cell < kCellCount; ++cell) givens[cell] = puzzle.Board[cell];
  const auto grade = grade::Grader().GradeOf(*layout, givens);
  return grade ? std::optional(grade->level) : std::nullopt;
}

}  // namespace

void PuzzleGrade::Follow(const PuzzleRecord& puzzle) {
  if (puzzle == puzzle_) return;
  puzzle_ = puzzle;
  level_.reset();
  worker_ = std::jthread([this, puzzle] {
    const auto level = LevelOf(puzzle);
    const auto tell = [this, puzzle, level] {
      if (puzzle != puzzle_) return;
      level_ = level;
      emit Known();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
  });
}

}  // namespace tessel
