#include "core/markup.h"

namespace tessel {

namespace {

std::string EscapedForMarkup(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '"':
      return "&quot;";
    default:
      return {character};
  }
}

}  // namespace

std::string EscapedForMarkup(std::string_view text) {
  std::string escaped;
  for (const char character : text) escaped += EscapedForMarkup(character);
  return escaped;
}

}  // namespace tessel
