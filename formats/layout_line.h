// A layout alone: 81 digits or letters, nine kinds, nine times each; white space between them is
// skipped. No format of puzzles: it is only read where layouts are asked for.
#pragma once

#include "formats/format.h"

namespace tessel::formats {

// A puzzle without givens.
Reading ReadLayoutLine(std::string_view line);

inline constexpr Format kLayoutLine{"layout", "a line of 81 cages", {},
                                    nullptr,  ReadLayoutLine,       nullptr};

}  // namespace tessel::formats
