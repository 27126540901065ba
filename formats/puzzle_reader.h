// Reads puzzles one after the other, from bytes that come in pieces: memory stays bounded however
// long the input is.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

#include "formats/format.h"

namespace tessel::formats {

// Fills the front of the bytes, and says how many; 0 at the end.
using ByteSource = std::function<std::size_t(std::span<char> bytes)>;

struct Place {
  bool isRecord = false;     // of .sds, otherwise a line
  std::uint64_t number = 0;  // of the line or record, from 1

  // "3", or "record 3"
  std::string Text() const;
};

struct LocatedFault {
  Place place;
  Fault fault;

  // "puzzles.txt:3:17: expected a digit 1 to 9 or '.', found 'A'"
  std::string Message(const std::string& file) const;
};

struct LocatedPuzzle {
  Place place;
  DescribedPuzzle puzzle;
};

class PuzzleReader {
 public:
  static constexpr std::size_t kMaxLineBytes = std::size_t{1} << 20;

  // Without a format, every line is looked at, and the start of the input for .sds.
  explicit PuzzleReader(ByteSource source, const Format* format = nullptr);

  // Nothing at the end. After a fault, reading goes on with the next line or record. Empty lines
  // and lines that begin with '#' are skipped.
  std::optional<tl::expected<LocatedPuzzle, LocatedFault>> Next();

 private:
  using Result = std::optional<tl::expected<LocatedPuzzle, LocatedFault>>;

  // The fault of an input that is of no format at all, after which nothing is left of it.
  std::optional<Fault> Recognise();
  Result NextRecord();
  Result NextLine();
  Result Located(Reading reading) const;
  Reading ReadLine(std::string_view line) const;

  // Has at least so many bytes at hand, unless the input ends before.
  void Need(std::size_t count);
  std::string_view AtHand() const { return std::string_view(buffer_).substr(start_); }
  // The size of the line there with its end; one that is too long is cut.
  std::size_t LineSize();
  void SkipRestOfLine();

  ByteSource source_;
  const Format* format_;
  std::string buffer_;
  std::size_t start_ = 0;  // of what is not yet taken
  bool ended_ = false;
  bool recognised_ = false;
  Place place_;
};

}  // namespace tessel::formats
