// Boards in the middle of a game, with candidates that other steps may have removed.
#pragma once

#include "grade/quick_position.h"
#include "tests/grade/made_puzzles.h"

namespace tessel::grade {

struct MadeBoard {
  Layout layout;
  CandidateGrid position;  // not solved, and without singles
  Grid solution;
};

// A stream of them, each from a puzzle of its own some of whose candidates are removed by chance.
class BoardMaker {
 public:
  MadeBoard Next() {
    while (true) {
      const Puzzle puzzle = puzzles_.MakeAnyKind(seed_++);
      CandidateGrid start = StartOf(puzzle.layout, puzzle.givens);
      RemoveSome(start, *puzzle.solution, kShares[seed_ % kShares.size()]);
      const CandidateGrid position = WithoutSingles(puzzle.layout, start);
      if (!position.Solved()) return {puzzle.layout, position, *puzzle.solution};
    }
  }

 private:
  // Of 64 wrong candidates, so many go.
  static constexpr std::array<std::uint32_t, 4> kShares{0, 2, 4, 8};

  void RemoveSome(CandidateGrid& position, const Grid& solution, std::uint32_t share) {
    for (int cell = 0; cell < kCellCount; ++cell) {
      for (int digit = 1; digit <= kSide; ++digit) {
        if (digit == solution[cell] || random_.Below(64) >= share) continue;
        position.candidates[cell] = Without(position.candidates[cell], BitOf(digit));
      }
    }
  }

  static CandidateGrid WithoutSingles(const Layout& layout, const CandidateGrid& start) {
    QuickPosition position(layout, start);
    while (position.WriteNakedSingles() + position.WriteHiddenSingles() > 0) {
    }
    return position.Value();
  }

  PuzzleMaker puzzles_;
  std::uint64_t seed_ = 0;
  RandomStream random_{1};
};

}  // namespace tessel::grade
