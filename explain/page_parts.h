// What is the same in every page.
#pragma once

#include <string_view>

namespace tessel::explain {

extern const std::string_view kStyle;
extern const std::string_view kScript;
extern const std::string_view kLegend;

}  // namespace tessel::explain
