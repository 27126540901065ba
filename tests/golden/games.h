// Whole games, from Saw to the applause, as stories.
#pragma once

#include <array>
#include <string>

namespace tessel {

struct Game {
  const char* name;  // of the file that holds the accepted story
  std::string (*play)();
};

std::string RandomGame();
std::string RotationalGame();
std::string RegularGame();
std::string PairsGame();
std::string HintsGame();
std::string MarksByHandGame();
std::string MistakesGame();

inline constexpr std::array kGames{
    Game{"random", RandomGame},    Game{"rotational", RotationalGame},
    Game{"regular", RegularGame},  Game{"pairs", PairsGame},
    Game{"hints", HintsGame},      Game{"marks_by_hand", MarksByHandGame},
    Game{"mistakes", MistakesGame}};

}  // namespace tessel
