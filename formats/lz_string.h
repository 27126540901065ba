// lz-string in base64, the compression of the puzzle links: LZW over UTF-16 characters.
//
// The stream is a sequence of codes. Codes 0 and 1 say that a character follows that has not been
// met before, of 8 or 16 bits; 2 ends the stream; all others name an entry of the dictionary.
// Sender and receiver number the entries alike: each new character is one, and so is each text that
// was sent, together with the character after it. A code has as many bits as the numbers given so
// far need, and begins with 2.
//
// Bits come lowest first; six of them, the first one highest, make a letter of base64.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace tessel::formats {

// Ends with '=' up to a multiple of four letters.
std::string LzCompressed(std::u16string_view text);

struct LzFault {
  enum class Kind : std::uint8_t { kLetter, kCut, kCode, kTooLong };

  Kind kind = Kind::kCut;
  std::size_t letter = 0;  // where in the base64
};

// At most `most` characters: a few letters may unpack to any number of them.
tl::expected<std::u16string, LzFault> LzDecompressed(std::string_view base64, std::size_t most);

}  // namespace tessel::formats
