// SumoCue, version 1.
//
//   line = SumoCueV1 and 81 times =valueJcage         value: 1..9, 0 for no given; cage: 0..8
#pragma once

#include "formats/format.h"

namespace tessel::formats {

bool LooksLikeSumoCue(std::string_view line);
Reading ReadSumoCue(std::string_view line);
Writing WriteSumoCue(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
