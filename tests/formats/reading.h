// What the reader makes of a text, as lines to compare.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "formats/puzzle_reader.h"

namespace tessel::formats {

// The text, `piece` bytes at a time.
inline ByteSource SourceOf(std::string text, std::size_t piece = 4096) {
  return [text = std::move(text), piece, next = std::size_t{0}](std::span<char> bytes) mutable {
    const std::size_t count = std::min({piece, bytes.size(), text.size() - next});
    std::copy_n(text.begin() + static_cast<std::ptrdiff_t>(next), count, bytes.begin());
    next += count;
    return count;
  };
}

// "puzzle at 3" or the message of a fault, for each that is read.
inline std::vector<std::string> Read(PuzzleReader reader) {
  std::vector<std::string> told;
  while (const auto next = reader.Next()) {
    told.push_back(*next ? "puzzle at " + (*next)->place.Text() : next->error().Message("f"));
  }
  return told;
}
inline std::vector<std::string> Read(const std::string& text, const Format* format = nullptr) {
  return Read(PuzzleReader(SourceOf(text), format));
}

}  // namespace tessel::formats
