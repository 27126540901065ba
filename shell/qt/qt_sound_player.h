// The sound player on Qt Multimedia.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

#include "core/sound_player.h"

namespace tessel {

// Plays in a process of its own. Connecting to a sound server, starting a sound and even taking
// leave block: for 30 s when the server is stopped, for ever when it dies during the call. In a
// thread that would still hold up the end of the program, because some ends (the toolkit's, when
// the display is lost) destroy Qt Multimedia's objects under that thread. The other process is
// killed by the system together with this one, however it ends, and what it has to say on standard
// error is nobody's business. What it cannot play is dropped.
//
// A sound server that comes back is used again, unless it died during a call.
class QtSoundPlayer final : public SoundPlayer {
 public:
  // Forks, so it must come before anything that starts threads or talks to the display. From here
  // on a failed write to a pipe is an error and no signal. Silent when no process can be had.
  QtSoundPlayer();
  QtSoundPlayer(const QtSoundPlayer&) = delete;
  QtSoundPlayer& operator=(const QtSoundPlayer&) = delete;
  ~QtSoundPlayer() override;

  // The sounds belong to no window.
  void SetOwner(std::int32_t) override {}
  // Always ready: whether there is a server shows later, and only by silence.
  int Status() override { return 1; }
  // Hands out the identifier at once and loads in the other process. The path is bytes, of no
  // particular encoding. Negative for what is not a WAV file of PCM samples, or too big for a
  // sound.
  std::int32_t Load(const std::string& path) override;
  // Returns at once; a sound that could not be started within half a second is left out.
  void Play(std::int32_t id) override;

 private:
  bool Send(const std::string& order) const;

  int orders_ = -1;  // the writing end of the pipe to the other process
  pid_t process_ = -1;
  std::int32_t count_ = 0;
};

}  // namespace tessel
