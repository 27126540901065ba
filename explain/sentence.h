// What is said of a step.
#pragma once

#include <string>

#include "core/layout.h"
#include "grade/step.h"

namespace tessel::explain {

// "Naked pair", "Law of Leftovers, two lines".
std::string HeadingOf(const grade::Step& step);
// The hint's own words where the hint button can name such a step. Without a full stop.
std::string SentenceOf(const Layout& layout, const grade::Step& step);
// Why it is so: "In row C, C2 and C3 take up 1 and 4". Without a full stop.
std::string ReasonOf(const Layout& layout, const grade::Step& step);
// What follows: "B4 is 7" or "5 goes from B5 and C6". Without a full stop.
std::string OutcomeOf(const grade::Step& step);

}  // namespace tessel::explain
