#include "tests/hints/recorded_boards.h"

#include <fstream>
#include <stdexcept>

#include "tests/source_folder.h"

namespace tessel {

namespace {

// The rest of the next line, which must begin with `name`.
std::string Field(std::istream& file, const std::string& name) {
  constexpr std::size_t kNameWidth = 9;
  std::string line;
  std::getline(file, line);
  if (!line.starts_with(name) || line.size() <= kNameWidth) {
    throw std::runtime_error("boards.txt: no " + name + " in " + line);
  }
  return line.substr(kNameWidth);
}

std::array<std::uint8_t, kCellCount> DigitsOf(const std::string& text) {
  std::array<std::uint8_t, kCellCount> digits{};
  for (std::size_t cell = 0; cell < digits.size(); ++cell) {
    digits[cell] = static_cast<std::uint8_t>(text.at(cell) - '0');
  }
  return digits;
}

// Three hexadecimal figures for each cell.
MaskBoard MarksOf(const std::string& text) {
  MaskBoard marks{};
  for (std::size_t cell = 0; cell < marks.size(); ++cell) {
    marks[cell] = static_cast<Mask>(std::stoi(text.substr(3 * cell, 3), nullptr, 16));
  }
  return marks;
}

}  // namespace

std::vector<RecordedBoard> ReadRecordedBoards() {
  std::ifstream file(SourceFolder() + "/tests/hints/boards.txt");
  if (!file) throw std::runtime_error("boards.txt cannot be read");
  std::vector<RecordedBoard> boards;
  for (std::string line; std::getline(file, line);) {
    if (line.empty()) continue;
    RecordedBoard board;
    board.purpose = line;
    board.puzzle.CageMap = DigitsOf(Field(file, "cages"));
    board.puzzle.Solution = DigitsOf(Field(file, "solution"));
    board.puzzle.Board = DigitsOf(Field(file, "board"));
    board.marks = MarksOf(Field(file, "marks"));
    board.red = Field(file, "red");
    board.sound = std::stoi(Field(file, "sounds"));
    board.text = Field(file, "text");
    boards.push_back(board);
  }
  return boards;
}

}  // namespace tessel
