// What the formats of one character a cell share.
#pragma once

#include <string>
#include <string_view>

#include "formats/format.h"

namespace tessel::formats {

// The character as a message shows it: 'A', a space as ' ', others as "byte 0x07".
std::string Shown(char character);
// The character there, or "the end of the line".
std::string ShownAt(std::string_view text, std::size_t offset);

// "r4c5"
std::string CellName(int cell);

// A grid as 81 characters, `empty` for cells without a digit.
std::string GridText(const Grid& grid, char empty);
// Cages as 81 digits.
std::string CagesText(const CageNumbers& cages);

struct FoundGrid {
  Grid grid{};
  std::size_t end = 0;  // the offset behind its last character
};

// 81 cells from `offset` on, white space between them skipped: digits 1 to 9, and one kind of empty
// mark, '.' or '0'.
tl::expected<FoundGrid, Fault> FindGrid(std::string_view text, std::size_t offset);

// 81 characters from `offset` on, white space skipped, of nine kinds: the cages, numbered as they
// are met, unless they are the digits 1 to 9, which stand for themselves. Nothing may follow.
tl::expected<Layout, Fault> FindLayout(std::string_view text, std::size_t offset);

// The offset of the first character from `offset` on that is no white space.
std::size_t SkipSpace(std::string_view text, std::size_t offset);

}  // namespace tessel::formats
