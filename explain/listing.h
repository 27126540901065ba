// Lists of things as sentences have them.
#pragma once

#include <string>
#include <vector>

#include "core/cell_set.h"
#include "grade/step.h"

namespace tessel::explain {

// "a", "a and b", "a, b and c"; `last` is the word before the last one.
std::string Listed(const std::vector<std::string>& words, const std::string& last = "and");
// "B4, C5 and D6"; the set must not be empty, nor the mask.
std::string NamesOf(CellSet cells, const std::string& last = "and");
std::string NamesOf(Mask digits, const std::string& last = "and");

}  // namespace tessel::explain
