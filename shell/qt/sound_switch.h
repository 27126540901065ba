// A sound player that can be silenced.
#pragma once

#include "core/sound_player.h"

namespace tessel {

// Everything goes on to another player but the sounds themselves while they are off. The other
// player must live as long.
class SoundSwitch final : public SoundPlayer {
 public:
  explicit SoundSwitch(SoundPlayer& player) : player_(player) {}

  void Turn(bool on) { on_ = on; }

  void SetOwner(std::int32_t window) override { player_.SetOwner(window); }
  int Status() override { return player_.Status(); }
  std::int32_t Load(const std::string& path) override { return player_.Load(path); }
  void Play(std::int32_t id) override {
    if (on_) player_.Play(id);
  }

 private:
  SoundPlayer& player_;
  bool on_ = true;
};

}  // namespace tessel
