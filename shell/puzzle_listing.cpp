#include "shell/puzzle_listing.h"

#include <utility>

#include "grade/grade.h"
#include "solver/solver.h"

namespace tessel {

namespace {

constexpr std::size_t kPuzzlesAtATime = 500;
constexpr std::size_t kLevelsAtATime = 100;
// Puzzles are decided within a few nodes; what is none may take for ever.
constexpr std::uint64_t kMaxNodes = 20'000;

PuzzleRecord RecordOf(const Puzzle& puzzle) {
  return {puzzle.givens, puzzle.solution.value_or(Grid{}), puzzle.layout.Cages()};
}

class Listing {
 public:
  Listing(std::string name, ListingTakers takers, std::stop_token stop)
      : name_(std::move(name)), takers_(std::move(takers)), stop_(std::move(stop)) {}

  void Run(const formats::ByteSource& source) {
    Read(source);
    Grade();
  }

 private:
  void Read(const formats::ByteSource& source) {
    formats::PuzzleReader reader(source);
    while (!stop_.stop_requested() && records_.size() < PuzzleListing::kMaxPuzzles) {
      auto next = reader.Next();
      if (!next) break;
      Take(*std::move(next));
    }
    PassOn();
    takers_.ended(Trouble());
  }

  void Take(tl::expected<formats::LocatedPuzzle, formats::LocatedFault> read) {
    if (!read) {
      if (faults_++ == 0) firstFault_ = read.error().Message(name_);
      return;
    }
    records_.push_back(RecordOf(read->puzzle.puzzle));
    found_.push_back({read->place.number, records_.back()});
    if (found_.size() == kPuzzlesAtATime) PassOn();
  }

  void PassOn() {
    if (!found_.empty()) takers_.found(std::exchange(found_, {}));
  }

  std::string Trouble() const {
    std::string trouble;
    if (records_.size() == PuzzleListing::kMaxPuzzles) {
      trouble = "Only the first " + std::to_string(records_.size()) + " are listed. ";
    }
    if (faults_ == 0) return trouble;
    return trouble + std::to_string(faults_) + " could not be read, the first: " + firstFault_;
  }

  void Grade() {
    std::vector<ListedLevel> levels;
    for (std::size_t k = 0; k < records_.size() && !stop_.stop_requested(); ++k) {
      levels.push_back(LevelOf(records_[k]));
      if (levels.size() < kLevelsAtATime && k + 1 < records_.size()) continue;
      const std::size_t first = k + 1 - levels.size();
      takers_.graded(first, std::exchange(levels, {}));
    }
  }

  ListedLevel LevelOf(const PuzzleRecord& record) {
    const Puzzle puzzle = PuzzleOf(record);
    solver_.Use(puzzle.layout);
    const auto found = solver_.CompletionsWithin(puzzle.givens, 2, kMaxNodes);
    if (!found || found->size() != 1) return {ListedGrade::kNotOne};
    return {ListedGrade::kLevel, grade::GradeOf(puzzle.layout, puzzle.givens).level};
  }

  std::string name_;
  ListingTakers takers_;
  std::stop_token stop_;
  solver::Solver solver_{Layout::Regular()};
  std::vector<PuzzleRecord> records_;
  std::vector<ListedPuzzle> found_;  // and not yet passed on
  std::uint64_t faults_ = 0;
  std::string firstFault_;
};

}  // namespace

PuzzleListing::PuzzleListing(formats::ByteSource source, std::string name, ListingTakers takers)
    : thread_([source = std::move(source), name = std::move(name),
               takers = std::move(takers)](const std::stop_token& stop) mutable {
        Listing(std::move(name), std::move(takers), stop).Run(source);
      }) {}

Puzzle PuzzleOf(const PuzzleRecord& record) {
  Puzzle puzzle{Layout::FromCages(record.CageMap).value(), record.Board, std::nullopt};
  if (record.Solution[0] != 0) puzzle.solution = record.Solution;
  return puzzle;
}

}  // namespace tessel
