// The ten sounds, played by number.
#pragma once

#include <string_view>

#include "core/game_state.h"
#include "core/sound_player.h"

namespace tessel {

// The sound numbers (MMID), in the order in which the files are loaded.
enum class Sound : std::int16_t {
  kApplause = 0,
  kPatch = 1,
  kEntry = 2,
  kBoink = 3,
  kBlaster = 4,
  kUnused = 5,
  kMarkAdded = 6,
  kCashRegister = 7,
  kError = 8,
  kGiggle = 9,
};
inline constexpr std::array<std::string_view, 10> kSoundFiles{
    "applause.wav", "Patch54p.wav", "Beep2.wav",   "Boink4.wav", "Blaster_1.wav",
    "Beep5.wav",    "Beep1.wav",    "Cashreg.wav", "Error.wav",  "Giggle.wav"};

class Sounds {
 public:
  // Refers to both, which must live as long.
  Sounds(GameState& state, SoundPlayer& player) : state_(state), player_(player) {}

  // Loads the ten files from ProgramPath when the player is ready; silent otherwise.
  void Init_Sound();
  // Starts sound `MMID`; does nothing when there is no player or the sound was not loaded.
  void PlaySound(Sound MMID);

 private:
  GameState& state_;
  SoundPlayer& player_;
};

}  // namespace tessel
