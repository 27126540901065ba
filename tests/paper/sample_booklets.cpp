// Usage: paper-samples FOLDER. Writes booklets and pictures of many kinds, to be looked at.
#include <gtest/gtest.h>

#include <fstream>
#include <iostream>

#include "paper/picture_file.h"
#include "tests/paper/sample_puzzles.h"

namespace tessel::paper {
namespace {

constexpr double kInch = kPointsPerInch;

// As long as a link that opens a puzzle on a phone.
std::string LongLink(const Puzzle& /*puzzle*/, int number) {
  return "https://example.org/play?" + std::string(800, 'N') + std::to_string(number);
}

Sink SinkTo(std::ofstream& file) {
  return [&file](std::span<const unsigned char> bytes) {
    const std::string text(bytes.begin(), bytes.end());
    return static_cast<bool>(file.write(text.data(), static_cast<std::streamsize>(text.size())));
  };
}

class Samples {
 public:
  explicit Samples(std::string folder) : folder_(std::move(folder)) {}

  void Booklet(const std::string& name, int count, const BookletOptions& options) const {
    std::ofstream file(folder_ + "/" + name + ".pdf", std::ios::binary);
    const auto pages = WriteBooklet(SamplePuzzles(count), options, SinkTo(file));
    std::cout << name << ": " << (pages ? std::to_string(*pages) + " pages" : pages.error())
              << '\n';
  }

  void Picture(const std::string& name, const BoardPicture& picture,
               const BoardStyle& style) const {
    std::ofstream svg(folder_ + "/" + name + ".svg", std::ios::binary);
    std::ofstream png(folder_ + "/" + name + ".png", std::ios::binary);
    const bool written = WriteSvg(picture, style, SinkTo(svg)).has_value() &&
                         WritePng(picture, style, 150, SinkTo(png)).has_value();
    std::cout << name << (written ? " written\n" : " failed\n");
  }

 private:
  std::string folder_;
};

// A step as an explanation draws it.
BoardPicture Step() {
  const Puzzle puzzle = SamplePuzzle();
  BoardPicture picture = PictureOfGivens(puzzle);
  picture.digits[0] = 4;
  picture.placed = CellSet::Of(0);
  picture.marks = PencilMarksOf(picture.layout, picture.digits);
  picture.captions = true;
  const auto cellsOf = [](const House& house) {
    CellSet cells;
    for (const int cell : house.cells) cells = cells | CellSet::Of(cell);
    return cells;
  };
  picture.areas = {cellsOf(picture.layout.HousesOf(HouseKind::kRow)[4]),
                   cellsOf(picture.layout.HousesOf(HouseKind::kCage)[5])};
  picture.highlighted = CellSet::Of(38) | CellSet::Of(36);
  picture.reasons[38] = BitOf(2);
  picture.reasons[36] = BitOf(2);
  picture.struck[44] = picture.marks[44];
  return picture;
}

void WriteAll(const Samples& samples) {
  BookletOptions full{.title = "Forty Irregular Sudokus for Rainy Days", .author = "Tessel Sudoku"};
  full.showGrade = full.showGivens = full.sections = full.titlePage = full.rulesPage = true;
  samples.Booklet("four", 40, full);
  BookletOptions six = full;
  six.perPage = 6;
  six.tint = Tint::kGrey;
  samples.Booklet("six", 24, six);
  BookletOptions twelve = full;
  twelve.perPage = 12;
  twelve.sections = false;
  twelve.tint = Tint::kColour;
  samples.Booklet("twelve", 24, twelve);
  BookletOptions book = full;
  book.page = {6 * kInch, 9 * kInch};
  book.perPage = 1;
  book.mirror = true;
  samples.Booklet("book", 20, book);
  BookletOptions large{.perPage = 1, .title = "Large Print", .large = true};
  samples.Booklet("large", 3, large);
  BookletOptions below = full;
  below.solutions = Solutions::kBelow;
  below.perPage = 2;
  samples.Booklet("below", 6, below);
  below.link = LongLink;
  below.perPage = 4;
  samples.Booklet("below-codes", 6, below);
  BookletOptions marks{.perPage = 2, .marks = true, .link = LongLink};
  samples.Booklet("marks-codes", 4, marks);
  BookletOptions alone{.perPage = 1};
  alone.solutions = Solutions::kNone;
  samples.Booklet("alone", 1, alone);
  samples.Picture("puzzle", PictureOfGivens(SamplePuzzle()), {.side = 255});
  samples.Picture("step", Step(), {.side = 320});
}

}  // namespace
}  // namespace tessel::paper

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: paper-samples FOLDER\n";
    return 2;
  }
  tessel::paper::WriteAll(tessel::paper::Samples(argv[1]));
  return 0;
}
