#include "formats/format.h"

#include <algorithm>
#include <array>

#include "formats/sdm.h"
#include "formats/sds.h"
#include "formats/text_line.h"

namespace tessel::formats {

namespace {

constexpr std::array kFormats{
    Format{"sds",
           "the window's puzzle file, records of 243 bytes",
           {Detail::kSolution},
           LooksLikeSds,
           ReadSds,
           WriteSds,
           ""},
    Format{"text",
           "a line of 81 givens and 81 cages",
           {},
           LooksLikeTextLine,
           ReadTextLine,
           WriteTextLine,
           ""},
    Format{
        "sdm", "a line of 81 givens, regular cages only", {}, LooksLikeSdm, ReadSdm, WriteSdm, ""},
};

}  // namespace

std::span<const Format> AllFormats() {
  return kFormats;
}

const Format* FormatNamed(std::string_view name) {
  const auto* const found = std::ranges::find(kFormats, name, &Format::name);
  return found == kFormats.end() ? nullptr : found;
}

}  // namespace tessel::formats
