// "300-500" and "2/7": two numbers in one option.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <utility>

namespace tessel::tools {

// The whole text as a number; nothing when it is none, or too large.
template <typename Number>
std::optional<Number> NumberIn(std::string_view text) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc{} || read.ptr != end) return std::nullopt;
  return number;
}

// The numbers before and behind the first separator.
template <typename Number>
std::optional<std::pair<Number, Number>> NumberPairIn(std::string_view text, char separator) {
  const std::size_t at = text.find(separator);
  if (at == std::string_view::npos) return std::nullopt;
  const auto a = NumberIn<Number>(text.substr(0, at));
  const auto b = NumberIn<Number>(text.substr(at + 1));
  if (!a || !b) return std::nullopt;
  return std::pair(*a, *b);
}

}  // namespace tessel::tools
