// Puzzles to print in tests.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/puzzle.h"
#include "paper/booklet.h"

namespace tessel::paper {

// A puzzle of 24 givens with one solution.
Puzzle SamplePuzzle();

// That puzzle turned, mirrored, and with its digits renamed: different from each other up to some
// thousands. Grades go round through "Easy", "Moderate", "Tricky" and none.
std::vector<BookletPuzzle> SamplePuzzles(int count);

// What the writer hands on, in one string. Fails the test when it returns an error.
std::string BookletBytes(std::span<const BookletPuzzle> puzzles, const BookletOptions& options);

}  // namespace tessel::paper
