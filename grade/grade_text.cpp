#include "grade/grade_text.h"

namespace tessel::grade {

std::vector<std::string> GradeColumns() {
  std::vector<std::string> columns{"level", "name", "hardest", "score"};
  for (const StepKindFacts& facts : kStepKinds) columns.emplace_back(facts.key);
  columns.insert(columns.end(), {"fewest", "stuck"});
  return columns;
}

std::vector<std::string> GradeFields(const Grade& grade) {
  std::vector<std::string> fields{
      std::to_string(static_cast<int>(grade.level)), std::string(NameOf(grade.level)),
      std::string(grade.hardest ? FactsOf(*grade.hardest).name : ""), std::to_string(grade.score)};
  for (const int count : grade.steps) fields.push_back(std::to_string(count));
  fields.push_back(std::to_string(grade.fewest));
  fields.push_back(grade.stuck ? TextOf(grade.stuck->digits) : "");
  return fields;
}

std::string TextOf(const Grid& grid) {
  std::string text;
  for (const int digit : grid) text += digit == 0 ? '.' : static_cast<char>('0' + digit);
  return text;
}

}  // namespace tessel::grade
