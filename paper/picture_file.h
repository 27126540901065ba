// A board alone, as SVG or PNG.
#pragma once

#include "paper/board_picture.h"
#include "paper/board_style.h"
#include "paper/sink.h"

namespace tessel::paper {

// Self-contained: digits are outlines, so that no font is needed where it is shown.
tl::expected<void, std::string> WriteSvg(const BoardPicture& picture, const BoardStyle& style,
                                         const Sink& sink);
// On white, with `pixelsPerInch` from 1 to 2400.
tl::expected<void, std::string> WritePng(const BoardPicture& picture, const BoardStyle& style,
                                         double pixelsPerInch, const Sink& sink);

}  // namespace tessel::paper
