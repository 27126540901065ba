// A grade as a line of output.
#pragma once

#include <cstdint>
#include <string>

#include "grade/grade.h"

namespace tessel::tools {

// The ways to write a grade down. Each line ends with the end of the line; `index` counts from 0.
struct GradeFormat {
  const char* name;
  std::string (*header)();  // what stands once before all lines
  std::string (*line)(std::uint64_t index, const grade::Grade& grade);
};

// For people: "     0  4 Hard       naked quad ...".
std::string GradeTextHeader();
std::string GradeTextLine(std::uint64_t index, const grade::Grade& grade);
// index and the columns of GradeColumns.
std::string GradeCsvHeader();
std::string GradeCsvLine(std::uint64_t index, const grade::Grade& grade);
// An object with the same names. null for no hardest step; "stuck" is null or an object of
// "digits", 81 characters, and "candidates", 81 texts like "139".
std::string GradeJsonHeader();
std::string GradeJsonLine(std::uint64_t index, const grade::Grade& grade);

inline constexpr std::array kGradeFormats{
    GradeFormat{"text", GradeTextHeader, GradeTextLine},
    GradeFormat{"csv", GradeCsvHeader, GradeCsvLine},
    GradeFormat{"jsonl", GradeJsonHeader, GradeJsonLine},
};

}  // namespace tessel::tools
