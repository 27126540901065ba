#include "formats/f_puzzles.h"

#include <array>

#include "formats/json_board.h"

namespace tessel::formats {

namespace {

constexpr std::array<std::string_view, 2> kMarkers{"?load=", "fpuzzles"};
constexpr std::array kRulesOfOthers{"diagonal+",
                                    "diagonal-",
                                    "antiknight",
                                    "antiking",
                                    "disjointgroups",
                                    "nonconsecutive",
                                    "negative",
                                    "arrow",
                                    "killercage",
                                    "littlekillersum",
                                    "sandwichsum",
                                    "xsum",
                                    "skyscraper",
                                    "thermometer",
                                    "slowthermometer",
                                    "palindrome",
                                    "renban",
                                    "whispers",
                                    "regionsumline",
                                    "betweenline",
                                    "lockout",
                                    "entropicline",
                                    "modularline",
                                    "zipperline",
                                    "nabner",
                                    "doublearrow",
                                    "difference",
                                    "ratio",
                                    "xv",
                                    "clone",
                                    "quadruple",
                                    "minimum",
                                    "maximum",
                                    "odd",
                                    "even",
                                    "extraregion",
                                    "rowindexer",
                                    "columnindexer",
                                    "boxindexer",
                                    "numberedroom"};

bool IsGiven(const Json& cell) {
  const Json* const given = Member(cell, "given");
  return given != nullptr && given->is_boolean() && given->get<bool>();
}

// 0: the region is none of 0..8.
int CageOf(const Json& object, int cell) {
  const Json* const region = Member(object, "region");
  if (region == nullptr) return Layout::Regular().CageOf(cell);
  if (!region->is_number_integer()) return 0;
  const auto number = region->get<std::int64_t>();
  return number >= 0 && number < kSide ? static_cast<int>(number) + 1 : 0;
}

tl::expected<CageNumbers, Fault> Regions(const CellsOfJson& cells) {
  CageNumbers cages{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int cage = CageOf(*cells[cell], cell);
    if (cage == 0) {
      return tl::unexpected(JsonFault(CellPath("/grid", cell) + "/region", "a region from 0 to 8",
                                      Member(*cells[cell], "region")));
    }
    cages[cell] = static_cast<std::uint8_t>(cage);
  }
  return cages;
}

OrderedJson CellOf(const DescribedPuzzle& described, int cell) {
  OrderedJson object = OrderedJson::object();
  const int given = described.puzzle.givens[cell];
  const int placed = described.placed ? (*described.placed)[cell] : 0;
  if (given != 0) {
    object["value"] = given;
    object["given"] = true;
  } else if (placed != 0) {
    object["value"] = placed;
  }
  object["region"] = described.puzzle.layout.CageOf(cell) - 1;
  if (described.pencilMarks && (*described.pencilMarks)[cell] != 0) {
    auto marks = OrderedJson::array();
    for (int digit = 1; digit <= kSide; ++digit) {
      if (Holds((*described.pencilMarks)[cell], digit)) marks.push_back(digit);
    }
    object["centerPencilMarks"] = std::move(marks);
  }
  return object;
}

OrderedJson GridOf(const DescribedPuzzle& described) {
  auto grid = OrderedJson::array();
  for (int row = 0; row < kSide; ++row) {
    auto line = OrderedJson::array();
    for (int column = 0; column < kSide; ++column) {
      line.push_back(CellOf(described, CellAt(row, column)));
    }
    grid.push_back(std::move(line));
  }
  return grid;
}

}  // namespace

bool LooksLikeFPuzzles(std::string_view line) {
  return line.find("://") != line.npos && HasMarker(line, kMarkers);
}

Reading ReadFPuzzles(std::string_view line) {
  return LinkedJson(line, kMarkers).and_then(FPuzzlesFromJson);
}

Reading FPuzzlesFromJson(const Json& root) {
  const Json* const size = Member(root, "size");
  if (size == nullptr || *size != kSide) return tl::unexpected(JsonFault("/size", "9", size));
  if (auto fault = ForeignRule(root, kRulesOfOthers)) return tl::unexpected(*fault);
  const auto cells = CellObjects(root, "grid");
  if (!cells) return tl::unexpected(cells.error());
  const auto cages = Regions(*cells);
  if (!cages) return tl::unexpected(cages.error());
  const auto givens = DigitsOf(*cells, "/grid", IsGiven);
  if (!givens) return tl::unexpected(givens.error());
  const auto placed = DigitsOf(*cells, "/grid", [](const Json& cell) { return !IsGiven(cell); });
  if (!placed) return tl::unexpected(placed.error());
  return Described(root, *cages, "/grid", *givens, Member(root, "solution"), root)
      .map([&](DescribedPuzzle described) {
        if (*placed != Grid{}) described.placed = *placed;
        described.pencilMarks = MarksOf(*cells, "centerPencilMarks");
        return described;
      });
}

Writing WriteFPuzzles(const DescribedPuzzle& described) {
  return LinkTo("https://f-puzzles.com/?load=", FPuzzlesJson(described));
}

OrderedJson FPuzzlesJson(const DescribedPuzzle& described) {
  OrderedJson root{{"size", kSide},
                   {"title", TitleOf(described)},
                   {"author", AuthorOf(described)},
                   {"ruleset", kRules},
                   {"grid", GridOf(described)}};
  if (described.puzzle.solution) root["solution"] = *described.puzzle.solution;
  return root;
}

}  // namespace tessel::formats
