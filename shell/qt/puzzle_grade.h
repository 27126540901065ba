// Grades the puzzle of the window on a thread of its own: no click waits for it.
#pragma once

#include <QObject>
#include <optional>
#include <thread>

#include "core/puzzle_record.h"
#include "grade/step_kind.h"

namespace tessel {

class PuzzleGrade final : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  // Grades this puzzle from now on; nothing to do when it is graded already.
  void Follow(const PuzzleRecord& puzzle);
  // Of the puzzle followed last, once it is known.
  std::optional<grade::Level> Level() const { return level_; }

 signals:
  void Known();

 private:
  PuzzleRecord puzzle_;
  std::optional<grade::Level> level_;
  std::jthread worker_;  // the last member: joined before the others go
};

}  // namespace tessel
