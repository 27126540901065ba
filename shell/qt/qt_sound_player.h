// The sound player on Qt Multimedia.
#pragma once

#include <QThread>
#include <QUrl>
#include <cstdint>
#include <memory>
#include <string>

#include "core/sound_player.h"

namespace tessel {

// A thread of its own talks to the sound server, because connecting to one, and even starting a
// sound, waits for its answer: for half a minute when the server is stopped, for ever when it dies
// in that moment. Nothing of that holds up the window; there is silence. A server that comes back
// is used again unless it died in such a moment.
class QtSoundPlayer final : public SoundPlayer {
 public:
  QtSoundPlayer() = default;
  QtSoundPlayer(const QtSoundPlayer&) = delete;
  QtSoundPlayer& operator=(const QtSoundPlayer&) = delete;
  // Ends the thread. Where a server that hangs holds it, the process will end without it.
  ~QtSoundPlayer() override;

  // The sounds belong to no window.
  void SetOwner(std::int32_t) override {}
  // Always ready: whether there is a server shows later, and only by silence.
  int Status() override { return 1; }
  // Hands out the identifier at once and loads in the thread. Negative for what is not a WAV file
  // of plain numbers, or too big for a sound.
  std::int32_t Load(const std::string& path) override;
  // Returns at once; a sound that could not be started within half a second is left out.
  void Play(std::int32_t id) override;

 private:
  class Speaker;

  void Start();

  std::unique_ptr<QThread> thread_;
  Speaker* speaker_ = nullptr;  // lives in the thread and is deleted there
  std::int32_t count_ = 0;
};

}  // namespace tessel
