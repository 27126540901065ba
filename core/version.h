// The version of the programs, told in one place: the project() line of the root's CMakeLists.txt.
#pragma once

namespace tessel {

// "1.1.0"
const char* Version();

}  // namespace tessel
