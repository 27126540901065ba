// Explanations as one page for a browser.
#pragma once

#include <span>
#include <string>
#include <tl/expected.hpp>

#include "paper/story.h"

namespace tessel::explain {

// HTML with pictures, style and script inside: it refers to nothing outside, and is not allowed to.
// Arrow keys and the space bar go from step to step; without a script, and on paper, all steps
// follow each other. Errors: a picture that cannot be drawn.
tl::expected<std::string, std::string> PageOf(std::span<const paper::Story> stories);

}  // namespace tessel::explain
