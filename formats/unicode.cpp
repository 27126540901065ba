#include "formats/unicode.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tessel::formats {

namespace {

constexpr char32_t kFirstOfTwo = 0xD800;
constexpr char32_t kSecondOfTwo = 0xDC00;
constexpr char32_t kBehindPairs = 0xE000;
constexpr char32_t kLastCharacter = 0x10FFFF;

// The least character that each number of bytes is for.
constexpr std::array<char32_t, 5> kMinOf{0, 0, 0x80, 0x800, 0x10000};

// How many bytes a character has that begins with this one; 0: none does.
int LengthFrom(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead < 0xC0 || lead > 0xF4) return 0;
  return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// The length of the character at the start, 0 when there is none.
int CharacterAt(std::string_view bytes) {
  const int length = LengthFrom(static_cast<unsigned char>(bytes[0]));
  if (length <= 1) return length;
  if (bytes.size() < static_cast<std::size_t>(length)) return 0;
  char32_t character = static_cast<unsigned char>(bytes[0]) & (0x7FU >> length);
  for (const char byte : bytes.substr(1, static_cast<std::size_t>(length) - 1)) {
    const auto bits = static_cast<unsigned char>(byte);
    if ((bits & 0xC0U) != 0x80) return 0;
    character = character << 6 | (bits & 0x3FU);
  }
  const bool isPairHalf = character >= kFirstOfTwo && character < kBehindPairs;
  const bool isLeast = character >= kMinOf[static_cast<std::size_t>(length)];
  return isLeast && !isPairHalf && character <= kLastCharacter ? length : 0;
}

void Append(std::string& bytes, char32_t character) {
  const auto tail = [&](int shift) {
    bytes += static_cast<char>(0x80 | (character >> shift & 0x3F));
  };
  if (character < 0x80) {
    bytes += static_cast<char>(character);
  } else if (character < 0x800) {
    bytes += static_cast<char>(0xC0 | character >> 6);
    tail(0);
  } else if (character < 0x10000) {
    bytes += static_cast<char>(0xE0 | character >> 12);
    tail(6), tail(0);
  } else {
    bytes += static_cast<char>(0xF0 | character >> 18);
    tail(12), tail(6), tail(0);
  }
}

bool IsIn(char32_t character, char32_t from, char32_t behind) {
  return character >= from && character < behind;
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const int length = CharacterAt(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(length));
  }
  return true;
}

std::optional<std::string> Utf8Of(std::u16string_view text) {
  if (std::ranges::all_of(text, [](char16_t character) { return character < 256; })) {
    std::string bytes;
    for (const char16_t character : text) bytes += static_cast<char>(character);
    if (IsUtf8(bytes)) return bytes;
  }
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t character = text[i];
    if (IsIn(character, kFirstOfTwo, kSecondOfTwo) && i + 1 < text.size() &&
        IsIn(text[i + 1], kSecondOfTwo, kBehindPairs)) {
      character = 0x10000 + ((character - kFirstOfTwo) << 10) + (text[++i] - kSecondOfTwo);
    }
    if (IsIn(character, kFirstOfTwo, kBehindPairs)) return std::nullopt;
    Append(bytes, character);
  }
  return bytes;
}

}  // namespace tessel::formats
