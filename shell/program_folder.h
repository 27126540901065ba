// Where the running program lies.
#pragma once

#include <optional>
#include <string>

namespace tessel {

// The absolute path of the folder that holds the running program's file: bytes, of no particular
// encoding, never empty. Nothing where the system does not tell.
std::optional<std::string> ProgramFolder();

}  // namespace tessel
