// QR codes that open a puzzle on a phone.
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "paper/cairo_handles.h"

namespace tessel::paper {

// Draws the text as a QR code that fills the square `place`; the quiet zone of four modules around
// it is the caller's. The error says that the text is too long: more than 2953 bytes.
tl::expected<void, std::string> DrawQrCode(cairo_t* context, std::string_view text,
                                           const Box& place);

}  // namespace tessel::paper
