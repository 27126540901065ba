#include "formats/columns.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <optional>
#include <variant>

#include "core/symmetry.h"
#include "formats/cell_text.h"

namespace tessel::formats {

namespace {

using Value = std::variant<std::monostate, std::uint64_t, std::string>;

std::uint64_t Count(const Grid& givens) {
  return kCellCount - static_cast<std::uint64_t>(std::ranges::count(givens, 0));
}

Value Canonical(const Puzzle& puzzle) {
  const CanonicalForm form = CanonicalFormOf(puzzle.layout, puzzle.givens);
  return GridText(form.givens, '.') + CagesText(form.cages);
}

Value PuzzleText(const DescribedPuzzle& described) {
  return GridText(described.puzzle.givens, '.');
}
Value SolutionText(const DescribedPuzzle& described) {
  if (!described.puzzle.solution) return {};
  return GridText(*described.puzzle.solution, '.');
}
Value Score(const DescribedPuzzle& described) {
  if (!described.rating) return {};
  return static_cast<std::uint64_t>(described.rating->score);
}

}  // namespace

struct Column {
  std::string_view name;
  Value (*valueOf)(const DescribedPuzzle&);
};

namespace {

constexpr std::array kColumns{
    Column{"index", [](const DescribedPuzzle& described) { return Value(described.index); }},
    Column{"puzzle", PuzzleText},
    Column{"solution", SolutionText},
    Column{"cages",
           [](const DescribedPuzzle& described) {
             return Value(CagesText(described.puzzle.layout.Cages()));
           }},
    Column{"givens",
           [](const DescribedPuzzle& described) { return Value(Count(described.puzzle.givens)); }},
    Column{"level",
           [](const DescribedPuzzle& described) {
             return described.rating ? Value(static_cast<std::uint64_t>(described.rating->level))
                                     : Value();
           }},
    Column{"hardest",
           [](const DescribedPuzzle& described) {
             return described.rating ? Value(described.rating->hardest) : Value();
           }},
    Column{"score", Score},
    Column{"symmetry",
           [](const DescribedPuzzle& described) {
             const Puzzle& puzzle = described.puzzle;
             return Value(std::string(SymmetryNameOf(puzzle.layout, puzzle.givens)));
           }},
    Column{"canonical",
           [](const DescribedPuzzle& described) { return Canonical(described.puzzle); }},
    Column{"source",
           [](const DescribedPuzzle& described) {
             return Value(described.title.empty() ? std::string("tessel") : described.title);
           }},
    Column{"question", PuzzleText},
    Column{"answer", SolutionText},
    Column{"rating", Score},
};

const Columns& UsualColumns() {
  static const Columns columns = ColumnsNamed(kDefaultColumns).value();
  return columns;
}

std::string Quoted(const std::string& value) {
  if (value.find_first_of(",\"\r\n") == std::string::npos) return value;
  std::string quoted = "\"";
  for (const char character : value) quoted += std::string(character == '"' ? 2 : 1, character);
  return quoted + "\"";
}

std::string InCsv(const Value& value) {
  if (const auto* const number = std::get_if<std::uint64_t>(&value)) return std::to_string(*number);
  if (const auto* const text = std::get_if<std::string>(&value)) return Quoted(*text);
  return "";
}

std::string InJson(const Value& value) {
  if (const auto* const number = std::get_if<std::uint64_t>(&value)) return std::to_string(*number);
  if (const auto* const text = std::get_if<std::string>(&value))
    return nlohmann::json(*text).dump();
  return "null";
}

// The columns' texts, with commas between them.
template <typename TextOf>
std::string Joined(const Columns& columns, const TextOf& textOf) {
  std::string joined;
  for (const Column* const column : columns) {
    if (column != columns.front()) joined += ',';
    joined += textOf(*column);
  }
  return joined;
}

}  // namespace

tl::expected<Columns, std::string> ColumnsNamed(std::string_view names) {
  Columns columns;
  while (true) {
    const std::size_t comma = std::min(names.find(','), names.size());
    const std::string_view name = names.substr(0, comma);
    const auto* const found = std::ranges::find(kColumns, name, &Column::name);
    if (found == kColumns.end()) return tl::unexpected(std::string(name));
    columns.push_back(found);
    if (comma == names.size()) return columns;
    names.remove_prefix(comma + 1);
  }
}

std::string ColumnNames() {
  std::string names;
  for (const Column& column : kColumns) {
    names += (names.empty() ? "" : ",") + std::string(column.name);
  }
  return names;
}

std::string CsvHeader(const Columns& columns) {
  return Joined(columns, [](const Column& column) { return column.name; }) + "\n";
}

std::string CsvLine(const DescribedPuzzle& puzzle, const Columns& columns) {
  return Joined(columns, [&](const Column& column) { return InCsv(column.valueOf(puzzle)); }) +
         "\n";
}

std::string JsonLine(const DescribedPuzzle& puzzle, const Columns& columns) {
  const auto member = [&](const Column& column) {
    return "\"" + std::string(column.name) + "\":" + InJson(column.valueOf(puzzle));
  };
  return "{" + Joined(columns, member) + "}\n";
}

Writing WriteCsv(const DescribedPuzzle& puzzle) {
  return CsvLine(puzzle, UsualColumns());
}

Writing WriteJsonLine(const DescribedPuzzle& puzzle) {
  return JsonLine(puzzle, UsualColumns());
}

}  // namespace tessel::formats
