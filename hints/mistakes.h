// Mistakes on the player's board, for which the hint button looks before it asks any technique.
// Each search returns the lowest cell at fault.
#pragma once

#include <optional>
#include <string>

#include "hints/technique.h"

namespace tessel {

// A filled cell whose digit is not that of the solution.
std::optional<int> FindWrongDigit(const Grid& digits, const Grid& solution);
// What the hint button says of it; `digit`, 1..9, is the wrong one.
std::string WrongDigitSentence(int cell, int digit);

// An empty cell whose candidates lack the digit of the solution.
std::optional<int> FindLostCandidate(const MarkedBoard& board, const Grid& solution);
// What the hint button says of it.
std::string LostCandidateSentence(int cell);

// A filled cell whose digit is a candidate in its row, column or cage, or in the cell itself.
std::optional<int> FindStaleCandidate(const MarkedBoard& board);
// What the hint button says of it; `digit`, 1..9, is the one on the board.
std::string StaleCandidateSentence(int cell, int digit);

}  // namespace tessel
