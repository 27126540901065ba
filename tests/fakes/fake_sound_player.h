// A sound player that writes down what it is asked to do.
#pragma once

#include <string>
#include <vector>

#include "core/sound_player.h"

namespace tessel {

class FakeSoundPlayer final : public SoundPlayer {
 public:
  void SetOwner(std::int32_t window) override { owners.push_back(window); }
  int Status() override { return status; }
  std::int32_t Load(const std::string& path) override {
    loaded.push_back(path);
    const auto id = static_cast<std::int32_t>(loaded.size()) - 1;
    return id == failingLoad ? -1 : id;
  }
  void Play(std::int32_t id) override { played.push_back(id); }

  int status = 1;
  std::int32_t failingLoad = -1;  // the load, counted from 0, that fails
  std::vector<std::int32_t> owners;
  std::vector<std::string> loaded;
  std::vector<std::int32_t> played;  // identifiers, equal to the sound numbers
};

}  // namespace tessel
