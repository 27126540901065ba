#include "formats/cell_text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>

namespace tessel::formats {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n\v\f";
constexpr std::string_view kEmptyMarks = ".0";

bool IsDigit(char character) {
  return character >= '1' && character <= '9';
}

bool IsCageName(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

std::string Quoted(char character) {
  return {'\'', character, '\''};
}

Fault FaultAt(std::string_view text, std::size_t offset, std::string expected) {
  return {offset, "", std::move(expected), ShownAt(text, offset)};
}

// The characters of nine cages, where each of them stands.
struct CageCharacters {
  PerCell<char> names{};
  PerCell<std::size_t> offsets{};
};

tl::expected<CageCharacters, Fault> FindCageCharacters(std::string_view text, std::size_t offset) {
  CageCharacters found;
  for (int cell = 0; cell < kCellCount; ++cell) {
    offset = SkipSpace(text, offset);
    if (offset == text.size() || !IsCageName(text[offset])) {
      return tl::unexpected(
          FaultAt(text, offset, "a digit or letter for the cage of " + CellName(cell)));
    }
    found.names[cell] = text[offset];
    found.offsets[cell] = offset++;
  }
  offset = SkipSpace(text, offset);
  if (offset == text.size()) return found;
  return tl::unexpected(FaultAt(text, offset, "the end of the line after the cages"));
}

// Digits 1 to 9 stand for themselves; other names are numbered as they are met. More than nine
// names: nothing.
std::optional<CageNumbers> Numbered(const PerCell<char>& names) {
  std::string met;
  CageNumbers numbers{};
  const bool digits = std::ranges::all_of(names, IsDigit);
  if (digits) met = "123456789";
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (met.find(names[cell]) == std::string::npos) met += names[cell];
    numbers[cell] = static_cast<std::uint8_t>(met.find(names[cell]) + 1);
  }
  if (met.size() > kSide) return std::nullopt;
  return numbers;
}

Fault TooManyCages(const CageCharacters& cages) {
  std::string met;
  int cell = 0;
  for (; met.size() <= kSide; ++cell) {
    if (met.find(cages.names[cell]) == std::string::npos) met += cages.names[cell];
  }
  return {cages.offsets[cell - 1], "", "one of the nine cages already named", Quoted(met.back())};
}

Fault CageFault(const CageCharacters& cages, const LayoutError& error) {
  const std::string name = Quoted(cages.names[error.cell]);
  Fault fault{cages.offsets[error.cell], "", "nine cages of nine connected cells", ""};
  if (error.size == 0) {
    fault.found = "none of cage '" + std::to_string(error.cage) + "'";
  } else if (error.fault == LayoutError::Fault::kNotNineCells) {
    fault.found = "cage " + name + " with " + std::to_string(error.size) + " cells";
  } else {
    fault.found = "cage " + name + " in separate parts";
  }
  return fault;
}

}  // namespace

std::string Shown(char character) {
  const auto byte = static_cast<unsigned char>(character);
  if (byte >= 0x20 && byte < 0x7F) return Quoted(character);
  constexpr std::string_view hex = "0123456789abcdef";
  return std::string("byte 0x") + hex[byte >> 4] + hex[byte & 15];
}

std::string ShownAt(std::string_view text, std::size_t offset) {
  return offset < text.size() ? Shown(text[offset]) : "the end of the line";
}

std::string CellName(int cell) {
  const auto digit = [](int index) { return static_cast<char>('1' + index); };
  return {'r', digit(RowOf(cell)), 'c', digit(ColumnOf(cell))};
}

std::string GridText(const Grid& grid, char empty) {
  std::string text(kCellCount, empty);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (grid[cell] != 0) text[cell] = static_cast<char>('0' + grid[cell]);
  }
  return text;
}

std::string CagesText(const CageNumbers& cages) {
  return GridText(cages, '0');
}

std::size_t SkipSpace(std::string_view text, std::size_t offset) {
  return std::min(text.find_first_not_of(kWhiteSpace, offset), text.size());
}

tl::expected<FoundGrid, Fault> FindGrid(std::string_view text, std::size_t offset) {
  FoundGrid found;
  std::string_view emptyMarks = kEmptyMarks;
  for (int cell = 0; cell < kCellCount; ++cell) {
    offset = SkipSpace(text, offset);
    const bool isDigit = offset < text.size() && IsDigit(text[offset]);
    const std::size_t mark = offset < text.size() ? emptyMarks.find(text[offset]) : emptyMarks.npos;
    if (!isDigit && mark == emptyMarks.npos) {
      const std::string empty =
          emptyMarks.size() == 1 ? Quoted(emptyMarks[0]) + " as before" : "'.' or '0'";
      return tl::unexpected(FaultAt(text, offset, "a digit 1 to 9 or " + empty));
    }
    if (isDigit) {
      found.grid[cell] = static_cast<std::uint8_t>(text[offset] - '0');
    } else {
      emptyMarks = emptyMarks.substr(mark, 1);
    }
    ++offset;
  }
  found.end = offset;
  return found;
}

tl::expected<Layout, Fault> FindLayout(std::string_view text, std::size_t offset) {
  const auto characters = FindCageCharacters(text, offset);
  if (!characters) return tl::unexpected(characters.error());
  const auto numbers = Numbered(characters->names);
  if (!numbers) return tl::unexpected(TooManyCages(*characters));
  auto layout = Layout::FromCages(*numbers);
  if (!layout) return tl::unexpected(CageFault(*characters, layout.error()));
  return *std::move(layout);
}

}  // namespace tessel::formats
