// Pictures of many grades: bars of text, and a page of SVG.
#pragma once

#include <string>

#include "grade/grade_summary.h"

namespace tessel::tools {

// How many puzzles there are of each level, as bars, and how many need each kind of step.
std::string ChartOf(const grade::GradeSummary& summary);

// The levels, and how the scores are spread inside them.
std::string PlotOf(const grade::GradeSummary& summary);

}  // namespace tessel::tools
