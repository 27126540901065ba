#include "formats/json_board.h"

namespace tessel::formats {

namespace {

bool IsListOfNine(const Json* value) {
  return value != nullptr && value->is_array() && value->size() == kSide;
}

Mask MaskOf(const Json& marks) {
  Mask mask = 0;
  for (const Json& mark : marks) {
    const int digit = DigitOf(mark);
    if (digit != 0) mask = static_cast<Mask>(mask | BitOf(digit));
  }
  return mask;
}

Fault CageFault(const LayoutError& error, const std::string& path) {
  return {0, "in its JSON, at " + path, "nine cages of nine connected cells", error.message};
}

}  // namespace

const Json* Member(const Json& object, const char* name) {
  if (!object.is_object()) return nullptr;
  const auto found = object.find(name);
  return found == object.end() ? nullptr : &*found;
}

std::string CellPath(const std::string& path, int cell) {
  return path + "/" + std::to_string(RowOf(cell)) + "/" + std::to_string(ColumnOf(cell));
}

tl::expected<CellsOfJson, Fault> CellObjects(const Json& root, const char* name) {
  const std::string path = std::string("/") + name;
  const Json* const rows = Member(root, name);
  if (!IsListOfNine(rows)) return tl::unexpected(JsonFault(path, "a list of nine rows", rows));
  CellsOfJson cells{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Json& row = (*rows)[static_cast<std::size_t>(RowOf(cell))];
    if (!IsListOfNine(&row)) {
      const std::string rowPath = path + "/" + std::to_string(RowOf(cell));
      return tl::unexpected(JsonFault(rowPath, "a list of nine cells", &row));
    }
    cells[cell] = &row[static_cast<std::size_t>(ColumnOf(cell))];
    if (!cells[cell]->is_object()) {
      return tl::unexpected(JsonFault(CellPath(path, cell), "an object", cells[cell]));
    }
  }
  return cells;
}

std::optional<MaskBoard> MarksOf(const CellsOfJson& cells, const char* name) {
  MaskBoard board{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Json* const marks = Member(*cells[cell], name);
    if (marks != nullptr && marks->is_array()) board[cell] = MaskOf(*marks);
  }
  return board == MaskBoard{} ? std::nullopt : std::optional(board);
}

Reading Described(const Json& root, const CageNumbers& cages, const std::string& cagesPath,
                  const Grid& givens, const Json* solution, const Json& words) {
  auto layout = Layout::FromCages(cages);
  if (!layout) return tl::unexpected(CageFault(layout.error(), cagesPath));
  DescribedPuzzle described{.puzzle = {*std::move(layout), givens, {}},
                            .title = TextOf(words, "title"),
                            .author = TextOf(words, "author")};
  if (solution != nullptr) described.puzzle.solution = CompleteGrid(*solution);
  const std::string where =
      Member(root, "solution") == nullptr ? "/metadata/solution" : "/solution";
  if (auto fault = SolutionFault(described.puzzle, where)) return tl::unexpected(*std::move(fault));
  return described;
}

}  // namespace tessel::formats
