// Tables of puzzles: CSV, and JSON Lines with the same names. Only written.
//
//   CSV  = names and then a line for each puzzle, values parted by commas; a value with a comma, a
//   quote
//          or the end of a line in it stands in quotes, and quotes in it are doubled
//   JSON = an object for each puzzle, a line each; null for what is not known
//
//   index      the place among the puzzles of the run, from 0
//   puzzle     81 givens, '.' for none; also named "question"
//   solution   81 digits, where it is known; also named "answer"
//   cages      81 digits
//   givens     how many
//   level      1 to 6, of a graded puzzle
//   hardest    the hardest step, of a graded puzzle
//   score      of a graded puzzle; also named "rating"
//   symmetry   of walls and places of givens together: see core/symmetry.h
//   canonical  81 givens and 81 cages, the same for all puzzles that differ only by turning,
//              mirroring and other names of digits
//   source     the title, or "tessel"
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "formats/format.h"

namespace tessel::formats {

struct Column;
using Columns = std::vector<const Column*>;

inline constexpr char kDefaultColumns[] =
    "index,puzzle,solution,cages,givens,level,hardest,score,symmetry,canonical";

// From names parted by commas; the error is a name that is none.
tl::expected<Columns, std::string> ColumnsNamed(std::string_view names);
// All the names, parted by commas.
std::string ColumnNames();

// Each ends with the end of its line.
std::string CsvHeader(const Columns& columns);
std::string CsvLine(const DescribedPuzzle& puzzle, const Columns& columns);
std::string JsonLine(const DescribedPuzzle& puzzle, const Columns& columns);

// With the usual columns.
Writing WriteCsv(const DescribedPuzzle& puzzle);
Writing WriteJsonLine(const DescribedPuzzle& puzzle);

}  // namespace tessel::formats
