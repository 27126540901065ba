// Text with some of its characters written in another way.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tessel {

struct Replacement {
  char character;
  std::string_view text;
};

// `text`, in which each character that has a replacement gives way to it.
std::string Replaced(std::string_view text, std::span<const Replacement> replacements);

}  // namespace tessel
