// Where the project's own files lie, for tests that read some of them.
#pragma once

#include <string>

namespace tessel {

// The root of the checkout that the tests were built from, without a separator at its end.
std::string SourceFolder();

}  // namespace tessel
