// An explanation as text.
#pragma once

#include <string>

#include "explain/explanation.h"

namespace tessel::explain {

// The board at the start, every step with its sentences and the position after it, and the end.
// Lines of 80 characters at most, as far as `title` allows.
std::string TextOf(const Explanation& explanation, const std::string& title);

}  // namespace tessel::explain
