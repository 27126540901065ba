// Which files are worth handing to Qt Multimedia.
#pragma once

#include <string>

namespace tessel {

// Whether the file is a WAV file with all its samples: 8- or 16-bit PCM, one or two channels, 4 to
// 192 kHz, at most 4 MiB. Reads headers alone, so it returns at once.
bool IsSoundFile(const std::string& path);

}  // namespace tessel
