// A booklet of puzzles as PDF.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <tl/expected.hpp>

#include "core/puzzle.h"
#include "paper/board_style.h"
#include "paper/page_size.h"
#include "paper/sink.h"

namespace tessel::paper {

struct PrintedGrade {
  int level = 0;  // orders the sections
  std::string name{};
};

struct BookletPuzzle {
  Puzzle puzzle;
  std::optional<PrintedGrade> grade{};
};

enum class Solutions : std::uint8_t { kBack, kBelow, kNone };

struct BookletOptions {
  Size page = kA4;
  Margins margins{42.5, 42.5, 42.5, 42.5};
  // Added to the margin at the binding. None: with mirrored margins as much as so many pages need,
  // else nothing.
  std::optional<double> gutter{};
  bool mirror = false;  // the binding is at the left of odd pages and at the right of even ones
  int perPage = 4;      // 1, 2, 4, 6 or 12
  std::string title{};  // UTF-8
  std::string author{};
  int numberFrom = 1;
  bool showGrade = false;
  bool showGivens = false;
  Solutions solutions = Solutions::kBack;
  bool sections = false;  // by grade, those without one last
  Tint tint = Tint::kNone;
  bool marks = false;
  bool large = false;  // digits of at least 16 points
  bool titlePage = false;
  bool rulesPage = false;
  // What a puzzle's QR code says; no codes without. Called at most once for each puzzle, on several
  // threads at once.
  std::function<std::string(const Puzzle&, int number)> link{};
  std::int64_t date = 0;  // seconds since 1970, UTC
};

// Whether the booklet's font has every character of the text.
bool CanBeSet(const std::string& text);

// Writes the booklet and returns its number of pages. The bytes depend on the arguments alone.
// Puzzles without a solution have none printed. Errors: nothing to print, a page too small, text
// that is no UTF-8, a link too long for a code, a sink that refuses.
tl::expected<int, std::string> WriteBooklet(std::span<const BookletPuzzle> puzzles,
                                            const BookletOptions& options, const Sink& sink);

}  // namespace tessel::paper
