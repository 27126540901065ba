#include "formats/solo.h"

#include <array>
#include <cctype>

#include "core/cell_set.h"
#include "formats/cell_text.h"

namespace tessel::formats {

namespace {

constexpr int kEdgeCount = 2 * kSide * (kSide - 1);
constexpr int kLongestRun = 25;  // of edges without a wall
constexpr int kLongestGap = 26;  // of cells without a given, for one letter

struct Edge {
  int first = 0;
  int second = 0;
};

constexpr std::array<Edge, kEdgeCount> kEdges = [] {
  std::array<Edge, kEdgeCount> edges{};
  std::size_t next = 0;
  for (int line = 0; line < kSide; ++line) {
    for (int k = 0; k + 1 < kSide; ++k) edges[next++] = {CellAt(line, k), CellAt(line, k + 1)};
  }
  for (int line = 0; line < kSide; ++line) {
    for (int k = 0; k + 1 < kSide; ++k) edges[next++] = {CellAt(k, line), CellAt(k + 1, line)};
  }
  return edges;
}();

bool IsDigit(char character) {
  return character >= '1' && character <= '9';
}

char LetterFor(int count) {
  return count == 0 ? '_' : static_cast<char>('a' + count - 1);
}

Fault FaultAt(std::string_view line, std::size_t offset, std::string expected) {
  return {offset, "", std::move(expected), ShownAt(line, offset)};
}

std::size_t SkipNumber(std::string_view line, std::size_t offset) {
  while (offset < line.size() && std::isdigit(static_cast<unsigned char>(line[offset])) != 0) {
    ++offset;
  }
  return offset;
}

// The offset behind the word there; its own where there is none.
std::size_t SkipWord(std::string_view line, std::size_t offset) {
  const std::string_view rest = line.substr(offset);
  if (rest.starts_with("d") && rest.size() > 1) return offset + 2;
  if (rest.starts_with("md")) return SkipNumber(line, offset + 2);
  if (rest.starts_with("a") || rest.starts_with("r") || rest.starts_with("m")) {
    return SkipNumber(line, offset + 1);
  }
  return offset;
}

// The offset of the grid.
tl::expected<std::size_t, Fault> SkipParameters(std::string_view line) {
  std::size_t offset = SkipSpace(line, 0);
  if (!line.substr(offset).starts_with("9j")) return tl::unexpected(FaultAt(line, offset, "9j"));
  offset += 2;
  for (std::size_t next = SkipWord(line, offset); next != offset;) {
    offset = next;
    next = SkipWord(line, offset);
  }
  if (offset < line.size() && line[offset] == ':') return offset + 1;
  return tl::unexpected(FaultAt(line, offset, "':', symmetry or difficulty"));
}

// Fills the grid from the text; the end is the offset of the comma behind it.
tl::expected<FoundGrid, Fault> FindSoloGrid(std::string_view line, std::size_t offset) {
  FoundGrid found;
  int cell = 0;
  for (; offset < line.size() && line[offset] != ','; ++offset) {
    const char character = line[offset];
    const bool isGap = character >= 'a' && character <= 'z';
    const int count = isGap ? character - 'a' + 1 : IsDigit(character) ? 1 : 0;
    if (count == 0 && character != '_') {
      return tl::unexpected(FaultAt(line, offset, "a digit, a letter a to z or '_'"));
    }
    if (cell + count > kCellCount) {
      return tl::unexpected(FaultAt(line, offset, "',' after 81 cells"));
    }
    if (IsDigit(character)) found.grid[cell] = static_cast<std::uint8_t>(character - '0');
    cell += count;
  }
  found.end = offset;
  if (cell == kCellCount && offset < line.size()) return found;
  return tl::unexpected(FaultAt(
      line, offset, cell < kCellCount ? "81 cells instead of " + std::to_string(cell) : "','"));
}

using Walls = std::array<bool, kEdgeCount>;

tl::expected<Walls, Fault> FindWalls(std::string_view line, std::size_t offset) {
  Walls walls{};
  int edge = 0;
  for (; edge <= kEdgeCount; ++offset) {
    const char character = offset < line.size() ? line[offset] : '\0';
    if (character == 'z') {
      return tl::unexpected(
          Fault{offset, "", "a letter a to y or '_'", "'z', which programs read in two ways"});
    }
    if (character != '_' && (character < 'a' || character > 'z')) {
      return tl::unexpected(FaultAt(line, offset, "a letter a to y or '_' for the next wall"));
    }
    edge += character == '_' ? 0 : character - 'a' + 1;
    if (edge > kEdgeCount) return tl::unexpected(FaultAt(line, offset, "a wall inside the board"));
    if (edge < kEdgeCount) walls[static_cast<std::size_t>(edge)] = true;
    ++edge;
  }
  offset = SkipSpace(line, offset);
  if (offset == line.size()) return walls;
  return tl::unexpected(FaultAt(line, offset, "the end of the line after the last wall"));
}

// For each cell, those that no wall parts from it.
PerCell<CellSet> OpenNeighbours(const Walls& walls) {
  PerCell<CellSet> open{};
  for (std::size_t edge = 0; edge < kEdges.size(); ++edge) {
    if (walls[edge]) continue;
    const auto [first, second] = kEdges[edge];
    open[first] = open[first] | CellSet::Of(second);
    open[second] = open[second] | CellSet::Of(first);
  }
  return open;
}

CellSet ReachedFrom(int cell, const PerCell<CellSet>& open) {
  CellSet reached = CellSet::Of(cell);
  for (CellSet edge = reached; !edge.Empty();) {
    CellSet next;
    ForEach(edge, [&](int from) { next = next | open[from]; });
    edge = next - reached;
    reached = reached | next;
  }
  return reached;
}

// Cages are the parts that walls leave, numbered as they are met.
tl::expected<Layout, Fault> LayoutWithin(const Walls& walls, std::size_t offset) {
  const PerCell<CellSet> open = OpenNeighbours(walls);
  CageNumbers cages{};
  std::uint8_t cage = 0;
  for (CellSet left = kAllCells; !left.Empty();) {
    const CellSet cells = ReachedFrom(left.First(), open);
    ++cage;
    if (cells.Count() != kSide) {
      return tl::unexpected(
          Fault{offset, "", "walls around nine cages of nine cells",
                "one of " + std::to_string(cells.Count()) + " cells at " + CellName(left.First())});
    }
    ForEach(cells, [&](int cell) { cages[cell] = cage; });
    left = left - cells;
  }
  return Layout::FromCages(cages).map_error([&](const LayoutError& error) {
    return Fault{offset, "", "nine cages", error.message};
  });
}

std::string SoloGrid(const Grid& givens) {
  std::string text;
  int gap = 0;
  const auto endGap = [&] {
    for (; gap > kLongestGap; gap -= kLongestGap) text += LetterFor(kLongestGap);
    if (gap > 0) text += LetterFor(std::exchange(gap, 0));
  };
  for (const int digit : givens) {
    if (digit == 0) {
      ++gap;
      continue;
    }
    endGap();
    if (!text.empty() && IsDigit(text.back())) text += '_';
    text += static_cast<char>('0' + digit);
  }
  endGap();
  return text;
}

Writing SoloWalls(const Layout& layout) {
  std::string text;
  int run = 0;
  for (std::size_t edge = 0; edge <= kEdges.size(); ++edge) {
    const bool isWall = edge == kEdges.size() ||
                        layout.CageOf(kEdges[edge].first) != layout.CageOf(kEdges[edge].second);
    if (isWall) {
      text += LetterFor(std::exchange(run, 0));
    } else if (++run > kLongestRun) {
      return tl::unexpected<std::string>(
          "26 edges without a wall follow each other, which programs read in two ways");
    }
  }
  return text;
}

}  // namespace

bool LooksLikeSolo(std::string_view line) {
  return line.substr(SkipSpace(line, 0)).starts_with("9j");
}

Reading ReadSolo(std::string_view line) {
  const auto start = SkipParameters(line);
  if (!start) return tl::unexpected(start.error());
  const auto givens = FindSoloGrid(line, *start);
  if (!givens) return tl::unexpected(givens.error());
  const auto walls = FindWalls(line, givens->end + 1);
  if (!walls) return tl::unexpected(walls.error());
  auto layout = LayoutWithin(*walls, givens->end + 1);
  if (!layout) return tl::unexpected(layout.error());
  return DescribedPuzzle{.puzzle = {*std::move(layout), givens->grid, {}}};
}

Writing WriteSolo(const DescribedPuzzle& puzzle) {
  return SoloWalls(puzzle.puzzle.layout).map([&](const std::string& walls) {
    return "9j:" + SoloGrid(puzzle.puzzle.givens) + "," + walls + "\n";
  });
}

}  // namespace tessel::formats
