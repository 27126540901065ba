// Text as XML and HTML hold it.
#pragma once

#include <string>
#include <string_view>

namespace tessel {

// `text` with the characters that would begin a tag, an entity or the end of an attribute in double
// quotes written as entities. Control characters stay: HTML takes them, XML has no word for most.
std::string EscapedForMarkup(std::string_view text);

}  // namespace tessel
