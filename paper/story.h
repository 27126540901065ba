// Pictures with words beside them, one after the other: pages of an explanation as PDF.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <tl/expected.hpp>
#include <vector>

#include "paper/board_picture.h"
#include "paper/page_size.h"
#include "paper/sink.h"

namespace tessel::paper {

struct Panel {
  std::string heading;                  // UTF-8, as all text here
  std::vector<std::string> paragraphs;  // the first is set in bold
  BoardPicture picture;
  std::optional<BoardPicture> after{};  // smaller, below the words
};

// Begins on a page of its own, with a bookmark.
struct Story {
  std::string title;
  std::vector<Panel> panels;
};

struct StoryOptions {
  Size page = kA4;
  Margins margins{42.5, 42.5, 42.5, 42.5};
  std::string legend{};   // at the foot of every story's first page
  std::int64_t date = 0;  // seconds since 1970, UTC
};

// Writes the pages and returns their number; the bytes depend on the arguments alone. Errors: no
// story, a page too small for a panel, text that is no UTF-8, a sink that refuses.
tl::expected<int, std::string> WriteStories(std::span<const Story> stories,
                                            const StoryOptions& options, const Sink& sink);

}  // namespace tessel::paper
