#include "formats/sudokupad.h"

#include <array>

#include "formats/cell_text.h"
#include "formats/json_board.h"

namespace tessel::formats {

namespace {

constexpr std::array<std::string_view, 3> kMarkers{"puzzleid=scl", "/scl", "scl"};
constexpr std::array kRulesOfOthers{"cages", "lines", "arrows", "overlays"};

std::string RegionPath(std::size_t region, std::size_t i) {
  return "/regions/" + std::to_string(region) + "/" + std::to_string(i);
}

// The cell that [row, column] names; nothing for anything else.
std::optional<int> CellOf(const Json& place) {
  const auto inside = [](const Json& n) {
    return n.is_number_integer() && n.get<std::int64_t>() >= 0 && n.get<std::int64_t>() < kSide;
  };
  if (!place.is_array() || place.size() != 2 || !inside(place[0]) || !inside(place[1])) {
    return std::nullopt;
  }
  return CellAt(place[0].get<int>(), place[1].get<int>());
}

std::optional<Fault> AddRegion(const Json& cells, std::size_t region, CageNumbers& cages) {
  const std::string path = "/regions/" + std::to_string(region);
  if (!cells.is_array()) return JsonFault(path, "a list of nine cells", &cells);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const auto cell = CellOf(cells[i]);
    if (!cell) return JsonFault(RegionPath(region, i), "[row, column], 0 to 8 each", &cells[i]);
    if (cages[*cell] != 0)
      return JsonFault(RegionPath(region, i), "a cell of one region", &cells[i]);
    cages[*cell] = static_cast<std::uint8_t>(region + 1);
  }
  return std::nullopt;
}

tl::expected<CageNumbers, Fault> Regions(const Json& root) {
  const Json* const regions = Member(root, "regions");
  if (regions == nullptr || !regions->is_array() || regions->size() != kSide) {
    return tl::unexpected(JsonFault("/regions", "a list of nine regions", regions));
  }
  CageNumbers cages{};
  for (std::size_t region = 0; region < kSide; ++region) {
    if (auto fault = AddRegion((*regions)[region], region, cages)) return tl::unexpected(*fault);
  }
  return cages;
}

OrderedJson Cells(const Grid& givens) {
  auto cells = OrderedJson::array();
  for (int row = 0; row < kSide; ++row) {
    auto line = OrderedJson::array();
    for (int column = 0; column < kSide; ++column) {
      const int digit = givens[CellAt(row, column)];
      line.push_back(digit == 0 ? OrderedJson::object() : OrderedJson{{"value", digit}});
    }
    cells.push_back(std::move(line));
  }
  return cells;
}

OrderedJson Regions(const Layout& layout) {
  auto regions = OrderedJson::array();
  for (const House& cage : layout.HousesOf(HouseKind::kCage)) {
    auto cells = OrderedJson::array();
    for (const int cell : cage.cells) {
      cells.push_back(OrderedJson::array({RowOf(cell), ColumnOf(cell)}));
    }
    regions.push_back(std::move(cells));
  }
  return regions;
}

}  // namespace

bool LooksLikeSudokuPad(std::string_view line) {
  return line.substr(SkipSpace(line, 0)).starts_with("scl") ||
         (line.find("://") != line.npos && HasMarker(line, std::span(kMarkers).first(2)));
}

Reading ReadSudokuPad(std::string_view line) {
  return LinkedJson(line, kMarkers).and_then(SudokuPadFromJson);
}

Reading SudokuPadFromJson(const Json& root) {
  if (!root.is_object()) return tl::unexpected(JsonFault("", "an object", &root));
  if (auto fault = ForeignRule(root, kRulesOfOthers)) return tl::unexpected(*fault);
  const auto cages = Regions(root);
  if (!cages) return tl::unexpected(cages.error());
  const auto cells = CellObjects(root, "cells");
  if (!cells) return tl::unexpected(cells.error());
  const auto givens = DigitsOf(*cells, "/cells", [](const Json&) { return true; });
  if (!givens) return tl::unexpected(givens.error());
  const Json* const metadata = Member(root, "metadata");
  const Json& words = metadata == nullptr ? root : *metadata;
  return Described(root, *cages, "/regions", *givens, Member(words, "solution"), words)
      .map([&](DescribedPuzzle puzzle) {
        puzzle.pencilMarks = MarksOf(*cells, "centremarks");
        return puzzle;
      });
}

Writing WriteSudokuPad(const DescribedPuzzle& described) {
  return LinkTo("https://sudokupad.app/scl", SudokuPadJson(described));
}

OrderedJson SudokuPadJson(const DescribedPuzzle& described) {
  const Puzzle& puzzle = described.puzzle;
  OrderedJson metadata{
      {"title", TitleOf(described)}, {"author", AuthorOf(described)}, {"rules", kRules}};
  if (puzzle.solution) metadata["solution"] = GridText(*puzzle.solution, '.');
  return {{"cells", Cells(puzzle.givens)},
          {"regions", Regions(puzzle.layout)},
          {"cages", OrderedJson::array()},
          {"metadata", std::move(metadata)}};
}

}  // namespace tessel::formats
