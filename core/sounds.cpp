#include "core/sounds.h"

namespace tessel {

namespace {
constexpr int kReady = 1;
}

void Sounds::Init_Sound() {
  state_.SoundOn = player_.Status() == kReady;
  if (!state_.SoundOn) return;
  for (std::size_t number = 0; number < kSoundFiles.size(); ++number) {
    state_.SoundIds[number] = player_.Load(state_.ProgramPath + std::string(kSoundFiles[number]));
  }
}

void Sounds::PlaySound(Sound MMID) {
  const std::int32_t id = state_.SoundIds[static_cast<std::size_t>(MMID)];
  if (state_.SoundOn && id >= 0) player_.Play(id);
}

}  // namespace tessel
