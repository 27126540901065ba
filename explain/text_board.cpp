#include "explain/text_board.h"

#include <algorithm>

#include "core/cage_edges.h"
#include "core/names.h"

namespace tessel::explain {

namespace {

std::string WithoutBlanksBehind(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  return line + "\n";
}

// The walls above the row.
std::string LevelWalls(const Layout& layout, int row) {
  std::string line = "  ";
  for (int column = 0; column < kSide; ++column) {
    const bool wall = row == kSide || IsCageWall(layout, CellAt(row, column), CellSide::kTop);
    line += wall ? "+---" : "+   ";
  }
  return line + "+\n";
}

std::string CellsOfRow(const Layout& layout, const CellTexts& texts, int row) {
  std::string line = RowName(row) + " ";
  for (int column = 0; column < kSide; ++column) {
    const int cell = CellAt(row, column);
    line += (IsCageWall(layout, cell, CellSide::kLeft) ? "|" : " ") + texts[cell];
  }
  return line + "|\n";
}

std::string CandidateText(const grade::CandidateGrid& position, int cell) {
  if (position.digits[cell] != 0) return "=" + std::to_string(position.digits[cell]);
  std::string text;
  for (int digit = 1; digit <= kSide; ++digit) {
    if (Holds(position.candidates[cell], digit)) text += std::to_string(digit);
  }
  return text;
}

std::string TableRow(int row, const PerCell<std::string>& texts,
                     const std::array<std::size_t, kSide>& widths) {
  std::string line = RowName(row);
  for (int column = 0; column < kSide; ++column) {
    const std::string& text = texts[CellAt(row, column)];
    line += "  " + text + std::string(widths[column] - text.size(), ' ');
  }
  return WithoutBlanksBehind(line);
}

}  // namespace

std::string Drawn(const Layout& layout, const CellTexts& texts) {
  std::string board = "  ";
  for (int column = 0; column < kSide; ++column) board += "  " + ColumnName(column) + " ";
  board = WithoutBlanksBehind(board);
  for (int row = 0; row < kSide; ++row) {
    board += LevelWalls(layout, row) + CellsOfRow(layout, texts, row);
  }
  return board + LevelWalls(layout, kSide);
}

CellTexts DigitTexts(const Grid& digits) {
  CellTexts texts;
  for (int cell = 0; cell < kCellCount; ++cell) {
    texts[cell] = digits[cell] == 0 ? "   " : " " + std::to_string(digits[cell]) + " ";
  }
  return texts;
}

CellTexts StepTexts(const Explanation& explanation, std::size_t k) {
  const grade::Step& step = explanation.steps[k].step;
  CellTexts texts = DigitTexts(explanation.After(k).digits);
  ForEach(step.cells, [&](int cell) {
    if (explanation.After(k).digits[cell] == 0) texts[cell] = " # ";
  });
  for (const grade::Removal& removal : step.removals) texts[removal.cell] = " x ";
  if (!step.placement) return texts;
  texts[step.placement->cell] = "[" + std::to_string(step.placement->digit) + "]";
  return texts;
}

std::string CandidateTable(const grade::CandidateGrid& position) {
  PerCell<std::string> texts;
  std::array<std::size_t, kSide> widths{};
  for (int cell = 0; cell < kCellCount; ++cell) {
    texts[cell] = CandidateText(position, cell);
    widths[ColumnOf(cell)] = std::max(widths[ColumnOf(cell)], texts[cell].size());
  }
  std::string table;
  for (int row = 0; row < kSide; ++row) table += TableRow(row, texts, widths);
  return table;
}

}  // namespace tessel::explain
