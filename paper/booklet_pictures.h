// The pages of a booklet as pictures, for printers that are driven by somebody else.
#pragma once

#include "paper/booklet.h"

namespace tessel::paper {

// Rows of `width` pixels from the top, `stride` bytes apart; a pixel is 0xffRRGGBB, on white.
struct PagePixels {
  int width = 0;
  int height = 0;
  int stride = 0;
  const unsigned char* bytes = nullptr;
};

// Takes a page; false ends the work. The pixels are gone when it returns.
using PageTaker = std::function<bool(const PagePixels&)>;

// The pages that WriteBooklet writes, one after the other; as many as were taken. `pixelsPerInch`
// is from 1 to 1200. The same errors, but for the sink's.
tl::expected<int, std::string> DrawBooklet(std::span<const BookletPuzzle> puzzles,
                                           const BookletOptions& options, double pixelsPerInch,
                                           const PageTaker& take);

}  // namespace tessel::paper
