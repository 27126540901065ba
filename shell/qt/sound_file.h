// Which files are worth handing to Qt Multimedia.
#pragma once

#include <QString>

namespace tessel {

// Whether the file is a WAV file with all its samples there: plain 8- or 16-bit numbers, one or two
// channels, not larger than a short sound can be. Reads headers alone, so it is over at once.
bool IsSoundFile(const QString& path);

}  // namespace tessel
