// Puzzles as files and on paper, as the command-line program writes them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "core/puzzle.h"
#include "formats/format.h"
#include "paper/booklet.h"
#include "paper/sink.h"

namespace tessel {

using Export = tl::expected<void, std::string>;

// A form that puzzles can be written in.
struct ExportKind {
  std::string_view name;     // "pdf", "svg", "png", or that of a format
  std::string_view summary;  // what it is, in a few words
  std::string_view suffix;   // of its files, without the point
  bool onePuzzleAFile = false;
};

// Paper first, then the formats in their order.
const std::vector<ExportKind>& ExportKinds();

// Errors: what cannot be written so, or a sink that refuses.
Export ExportPuzzles(std::span<const Puzzle> puzzles, const ExportKind& kind,
                     const paper::Sink& sink);

// The pages that a few puzzles fill: each as large as it may be, up to four a page.
tl::expected<paper::BookletOptions, std::string> BookletFor(std::size_t puzzles, paper::Size page);
std::vector<paper::BookletPuzzle> BookletPuzzles(std::span<const Puzzle> puzzles);

// The puzzle in a format of one line, without the line's end.
formats::Writing LineOf(const Puzzle& puzzle, std::string_view format);

}  // namespace tessel
