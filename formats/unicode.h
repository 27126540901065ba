// Texts of JavaScript, whose characters have 16 bits, as UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessel::formats {

bool IsUtf8(std::string_view bytes);

// Some programs pack the bytes of UTF-8 as if each were a character: these bytes, where all are
// below 256 and they are UTF-8. Otherwise the characters of UTF-16. Nothing for half a pair.
std::optional<std::string> Utf8Of(std::u16string_view text);

}  // namespace tessel::formats
