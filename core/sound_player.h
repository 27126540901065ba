// The port to the sound player `ESound1`.
#pragma once

#include <cstdint>
#include <string>

namespace tessel {

class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;

  // Told once, before anything is loaded, which window the sounds belong to.
  virtual void SetOwner(std::int32_t window) = 0;
  // 1 when the player is ready; anything else means that it cannot be used.
  virtual int Status() = 0;
  // The identifier of the loaded WAV file, or a negative number when it cannot be loaded.
  virtual std::int32_t Load(const std::string& path) = 0;
  // Starts the sound and returns at once.
  virtual void Play(std::int32_t id) = 0;
};

}  // namespace tessel
