#include "core/text_replacement.h"

#include <algorithm>

namespace tessel {

std::string Replaced(std::string_view text, std::span<const Replacement> replacements) {
  std::string replaced;
  for (const char character : text) {
    const auto found = std::ranges::find(replacements, character, &Replacement::character);
    if (found == replacements.end()) {
      replaced += character;
    } else {
      replaced += found->text;
    }
  }
  return replaced;
}

}  // namespace tessel
