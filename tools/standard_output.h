// Standard output, with every byte accounted for.
#pragma once

#include <string_view>

namespace tessel::tools {

// Writes all the bytes to the open file. Throws Failure with `name` in its message when the system
// refuses, ReaderGone when the other end of a pipe is closed.
void WriteAll(int file, std::string_view bytes, std::string_view name);

void WriteToStandardOutput(std::string_view bytes);

}  // namespace tessel::tools
