#include "formats/ksudoku.h"

#include <algorithm>

#include "core/markup.h"
#include "formats/link.h"

namespace tessel::formats {

namespace {

// The cell of this number, either way: rows and columns change places.
constexpr int Transposed(int cell) {
  return CellAt(ColumnOf(cell), RowOf(cell));
}

// XML has no word for most control characters.
std::string WithoutControls(std::string text) {
  const auto isControl = [](char character) { return static_cast<unsigned char>(character) < ' '; };
  std::ranges::replace_if(text, isControl, ' ');
  return text;
}

std::string Clique(const House& cage) {
  std::string cells;
  for (const int cell : cage.cells) cells += std::to_string(Transposed(cell)) + " ";
  return "<clique size=\"9\">" + cells + "</clique>";
}

std::string Values(const Grid& givens) {
  std::string values(kCellCount, '_');
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (givens[cell] != 0) values[Transposed(cell)] = static_cast<char>('a' + givens[cell]);
  }
  return values;
}

}  // namespace

Writing WriteKSudoku(const DescribedPuzzle& described) {
  const Puzzle& puzzle = described.puzzle;
  std::string cliques;
  for (const House& cage : puzzle.layout.HousesOf(HouseKind::kCage)) cliques += Clique(cage);
  return "<!DOCTYPE ksudoku><ksudoku><game had-help=\"0\" msecs-elapsed=\"0\"><puzzle>\n"
         "<graph order=\"9\" type=\"custom\" specific-type=\"Jigsaw\" name=\"" +
         EscapedForMarkup(WithoutControls(TitleOf(described))) +
         "\" sizeX=\"9\" sizeY=\"9\" sizeZ=\"1\">\n"
         "<sudokugroups at=\"0\" withblocks=\"0\"/>" +
         cliques + "\n</graph><values>" + Values(puzzle.givens) +
         "</values></puzzle><history/></game></ksudoku>\n";
}

}  // namespace tessel::formats
