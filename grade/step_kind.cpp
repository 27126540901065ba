#include "grade/step_kind.h"

#include <algorithm>
#include <string>

namespace tessel::grade {

namespace {

char Folded(char letter) {
  if (letter == ' ' || letter == '-') return '_';
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string Folded(std::string_view name) {
  std::string folded(name);
  std::ranges::transform(folded, folded.begin(), [](char letter) { return Folded(letter); });
  return folded;
}

}  // namespace

std::string_view NameOf(Level level) {
  static constexpr std::array<std::string_view, kLevelCount> names{"Easy", "Moderate",  "Tricky",
                                                                   "Hard", "Very hard", "Beyond"};
  return names[static_cast<std::size_t>(level) - 1];
}

std::optional<StepKind> StepKindNamed(std::string_view name) {
  const std::string wanted = Folded(name);
  for (const StepKindFacts& facts : kStepKinds) {
    if (wanted == facts.key || wanted == Folded(facts.name)) return facts.kind;
  }
  return std::nullopt;
}

}  // namespace tessel::grade
