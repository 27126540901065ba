// A format: one way to write a puzzle down, and mostly to read it back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "formats/described_puzzle.h"

namespace tessel::formats {

// What a reader met in the place of what it needs.
struct Fault {
  std::size_t offset = 0;  // in bytes, from the start of the record
  std::string place;       // inside a link: "in its JSON, at /cells/0/3"; else empty
  std::string expected;    // "a digit 1 to 9 or '.'"
  std::string found;       // "'A'"

  friend bool operator==(const Fault&, const Fault&) = default;
};

using Reading = tl::expected<DescribedPuzzle, Fault>;
// The bytes of one record with the end of its line, or why the format cannot say this puzzle.
using Writing = tl::expected<std::string, std::string>;

// What a format can say besides givens and cages.
enum class Detail : std::uint8_t {
  kSolution = 1,
  kTitle = 2,
  kAuthor = 4,
  kPlaced = 8,
  kPencilMarks = 16,
  kRating = 32,
};

class Details {
 public:
  constexpr Details() = default;
  constexpr Details(std::initializer_list<Detail> details) {
    for (const Detail detail : details) bits_ |= static_cast<unsigned>(detail);
  }

  constexpr bool Has(Detail detail) const { return (bits_ & static_cast<unsigned>(detail)) != 0; }
  constexpr bool Empty() const { return bits_ == 0; }

  friend constexpr Details operator|(Details a, Details b) { return Details(a.bits_ | b.bits_); }
  friend constexpr Details operator-(Details a, Details b) { return Details(a.bits_ & ~b.bits_); }
  friend constexpr bool operator==(Details, Details) = default;

 private:
  constexpr explicit Details(unsigned bits) : bits_(bits) {}

  unsigned bits_ = 0;
};

// What is told of this puzzle.
Details DetailsOf(const DescribedPuzzle& puzzle);

struct Format {
  std::string_view name;     // as it is asked for: "f-puzzles"
  std::string_view summary;  // a line of help
  Details carries;
  bool (*looksLike)(std::string_view record);  // nullptr: the format is only written
  Reading (*read)(std::string_view record);    // nullptr: the format is only written
  Writing (*write)(const DescribedPuzzle& puzzle);
  std::string_view header{};  // what stands once before all records
  bool onePuzzleAFile = false;

  bool IsRead() const { return read != nullptr; }
};

// In the order in which they are listed, which is also the order in which an input is tried.
std::span<const Format> AllFormats();
// nullptr: there is none of that name.
const Format* FormatNamed(std::string_view name);

}  // namespace tessel::formats
