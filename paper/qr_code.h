// QR codes that open a puzzle on a phone.
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "paper/cairo_handles.h"

namespace tessel::paper {

// The text as a QR code: a stencil, on which the dark modules are set. The quiet zone of four
// modules around it is the caller's. The error says that the text is too long: more than 2953
// bytes. May be called on several threads at once.
using QrCode = tl::expected<Surface, std::string>;
QrCode QrCodeOf(std::string_view text);

// The square is filled with the stencil.
void DrawStencil(cairo_t* context, cairo_surface_t* stencil, const Box& square);

}  // namespace tessel::paper
