// .sds: the puzzle file of the window, records of 243 bytes without a header.
//
//   record = givens solution cages
//   givens   = 81 bytes 0..9                          0: no given
//   solution = 81 bytes 1..9, or 81 bytes 0           0: not known
//   cages    = 81 bytes 1..9                          the cage of each cell
//
// The one format whose records are no lines.
#pragma once

#include "formats/format.h"

namespace tessel::formats {

inline constexpr std::string_view kSdsName = "sds";
inline constexpr std::size_t kSdsRecordSize = 3 * kCellCount;

// Whether a file that begins with these bytes is one of records: it holds bytes that no text has.
bool LooksLikeSds(std::string_view start);
Reading ReadSds(std::string_view record);
Writing WriteSds(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
