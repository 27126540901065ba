#include "tools/grade_lines.h"

#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

#include "grade/grade_text.h"

namespace tessel::tools {

namespace {

using namespace grade;

std::string Joined(const std::string& first, const std::vector<std::string>& rest) {
  std::string line = first;
  for (const std::string& field : rest) line += "," + field;
  return line + "\n";
}

// "naked single 31, hidden single 26"
std::string CountsOf(const Grade& grade) {
  std::string counts;
  for (const StepKindFacts& facts : kStepKinds) {
    const int count = grade.StepsOf(facts.kind);
    if (count == 0) continue;
    counts += counts.empty() ? "" : ", ";
    counts += std::string(facts.name) + " " + std::to_string(count);
  }
  return counts;
}

std::string DigitsOf(Mask candidates) {
  std::string digits;
  for (int digit = 1; digit <= kSide; ++digit) {
    if (Holds(candidates, digit)) digits += static_cast<char>('0' + digit);
  }
  return digits;
}

nlohmann::ordered_json StuckOf(const Grade& grade) {
  if (!grade.stuck) return nullptr;
  nlohmann::ordered_json candidates = nlohmann::ordered_json::array();
  for (const Mask mask : grade.stuck->candidates) candidates.push_back(DigitsOf(mask));
  return {{"digits", TextOf(grade.stuck->digits)}, {"candidates", std::move(candidates)}};
}

}  // namespace

std::string GradeTextHeader() {
  return " index  level        hardest step               score  fewest  steps\n";
}

std::string GradeTextLine(std::uint64_t index, const Grade& grade) {
  std::ostringstream line;
  line << std::setw(6) << index << "  " << static_cast<int>(grade.level) << " " << std::left
       << std::setw(11) << NameOf(grade.level) << std::setw(25)
       << (grade.hardest ? FactsOf(*grade.hardest).name : "-") << std::right << std::setw(7)
       << grade.score << std::setw(8) << grade.fewest << "  " << CountsOf(grade);
  if (grade.stuck) line << "; stuck at " << TextOf(grade.stuck->digits);
  line << "\n";
  return line.str();
}

std::string GradeCsvHeader() {
  return Joined("index", GradeColumns());
}

std::string GradeCsvLine(std::uint64_t index, const Grade& grade) {
  return Joined(std::to_string(index), GradeFields(grade));
}

std::string GradeJsonHeader() {
  return "";
}

std::string GradeJsonLine(std::uint64_t index, const Grade& grade) {
  nlohmann::ordered_json line{{"index", index},
                              {"level", static_cast<int>(grade.level)},
                              {"name", NameOf(grade.level)},
                              {"hardest", nullptr},
                              {"score", grade.score}};
  if (grade.hardest) line["hardest"] = FactsOf(*grade.hardest).name;
  for (const StepKindFacts& facts : kStepKinds) {
    line[std::string(facts.key)] = grade.StepsOf(facts.kind);
  }
  line["fewest"] = grade.fewest;
  line["stuck"] = StuckOf(grade);
  return line.dump() + "\n";
}

}  // namespace tessel::tools
