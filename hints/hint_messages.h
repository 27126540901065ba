// Every sentence that the hint button writes.
#pragma once

#include <string>

#include "core/game_state.h"

namespace tessel {

// Mistakes on the board, about one cell.
std::string WrongDigitMessage(const GameState& state, int cell);
std::string LostCandidateMessage(const GameState& state, int cell);
std::string StaleCandidateMessage(const GameState& state, int cell);

// The special pass's cell, without and with the digit.
std::string AnnouncedCellMessage(const GameState& state);
std::string PendingAssignmentMessage(const GameState& state);

// What the hint result fields say. `subset` names the subset searched for, such as "naked pair",
// and is used by the subset hints alone.
std::string HintMessage(const GameState& state, const std::string& subset);

}  // namespace tessel
