// A grade as the fields of a table: one list of columns for every program that writes one.
#pragma once

#include <string>
#include <vector>

#include "grade/grade.h"

namespace tessel::grade {

// "level", "name", "hardest", "score", the key of each kind of step, "fewest", "stuck".
std::vector<std::string> GradeColumns();
// The fields of those columns: the level's number and name, the name of the hardest kind, the
// counts, and where level 6 is stuck 81 digits, '.' for an open cell. Empty where there is none.
// No field holds a comma, a quote or an end of line.
std::vector<std::string> GradeFields(const Grade& grade);

// 81 digits, '.' for an open cell.
std::string TextOf(const Grid& grid);

}  // namespace tessel::grade
