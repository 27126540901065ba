#include "formats/format.h"

#include <algorithm>
#include <array>

#include "formats/columns.h"
#include "formats/drawing.h"
#include "formats/f_puzzles.h"
#include "formats/ksudoku.h"
#include "formats/sdm.h"
#include "formats/sds.h"
#include "formats/solo.h"
#include "formats/sudokupad.h"
#include "formats/sumocue.h"
#include "formats/text_line.h"

namespace tessel::formats {

namespace {

constexpr Details kLinked{Detail::kSolution, Detail::kTitle, Detail::kAuthor};
constexpr Details kMarked = kLinked | Details{Detail::kPlaced, Detail::kPencilMarks};
constexpr Details kTabled{Detail::kSolution, Detail::kRating};

constexpr std::string_view kCsvHeader =
    "index,puzzle,solution,cages,givens,level,hardest,score,symmetry,canonical\n";
static_assert(kCsvHeader.starts_with(kDefaultColumns));

constexpr std::array kFormats{
    Format{kSdsName,
           "the window's puzzle file: records of 243 bytes",
           {Detail::kSolution},
           LooksLikeSds,
           ReadSds,
           WriteSds},
    Format{"text",
           "a line of 81 givens and 81 cages",
           {},
           LooksLikeTextLine,
           ReadTextLine,
           WriteTextLine},
    Format{"drawing", "a drawing of 19 lines of text", {}, nullptr, nullptr, WriteDrawing},
    Format{"sudokupad", "a link that SudokuPad opens", kLinked, LooksLikeSudokuPad, ReadSudokuPad,
           WriteSudokuPad},
    Format{"f-puzzles", "a link that f-puzzles opens", kMarked, LooksLikeFPuzzles, ReadFPuzzles,
           WriteFPuzzles},
    Format{"solo",
           "a game ID of Solo, in the Portable Puzzle Collection",
           {},
           LooksLikeSolo,
           ReadSolo,
           WriteSolo},
    Format{
        "sumocue", "a line of SumoCue, version 1", {}, LooksLikeSumoCue, ReadSumoCue, WriteSumoCue},
    Format{"ksudoku",
           "a saved game of KSudoku: one puzzle a file",
           {Detail::kTitle},
           nullptr,
           nullptr,
           WriteKSudoku,
           "",
           true},
    Format{"csv", "a table for data frames and spreadsheets", kTabled, nullptr, nullptr, WriteCsv,
           kCsvHeader},
    Format{"jsonl", "the same table in JSON, an object a line", kTabled, nullptr, nullptr,
           WriteJsonLine},
    Format{"sdm", "a line of 81 givens: regular cages only", {}, LooksLikeSdm, ReadSdm, WriteSdm},
};

}  // namespace

std::span<const Format> AllFormats() {
  return kFormats;
}

const Format* FormatNamed(std::string_view name) {
  const auto* const found = std::ranges::find(kFormats, name, &Format::name);
  return found == kFormats.end() ? nullptr : found;
}

Details DetailsOf(const DescribedPuzzle& puzzle) {
  Details details;
  const auto add = [&](bool has, Detail detail) {
    if (has) details = details | Details{detail};
  };
  add(puzzle.puzzle.solution.has_value(), Detail::kSolution);
  add(!puzzle.title.empty(), Detail::kTitle);
  add(!puzzle.author.empty(), Detail::kAuthor);
  add(puzzle.placed.has_value(), Detail::kPlaced);
  add(puzzle.pencilMarks.has_value(), Detail::kPencilMarks);
  add(puzzle.rating.has_value(), Detail::kRating);
  return details;
}

}  // namespace tessel::formats
