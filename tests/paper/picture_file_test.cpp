#include "paper/picture_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/paper/command_output.h"
#include "tests/paper/sample_puzzles.h"

namespace tessel::paper {
namespace {

using testing::HasSubstr;
using testing::Not;

Sink SinkTo(std::string& bytes) {
  return [&bytes](std::span<const unsigned char> more) {
    bytes.append(more.begin(), more.end());
    return true;
  };
}

std::string SvgOf(const BoardPicture& picture, const BoardStyle& style = {}) {
  std::string bytes;
  EXPECT_TRUE(WriteSvg(picture, style, SinkTo(bytes)));
  return bytes;
}

std::string PngOf(const BoardPicture& picture, double pixelsPerInch) {
  std::string bytes;
  EXPECT_TRUE(WritePng(picture, {.side = 144}, pixelsPerInch, SinkTo(bytes)));
  return bytes;
}

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

TEST(PictureFile, SvgHasTheSizeAndNeedsNothingElse) {
  const std::string svg = SvgOf(PictureOfGivens(SamplePuzzle()), {.side = 255});
  EXPECT_THAT(svg, HasSubstr("width=\"255pt\" height=\"255pt\" viewBox=\"0 0 255 255\""));
  EXPECT_THAT(svg, Not(HasSubstr("href=\"http")));
  EXPECT_THAT(svg, Not(HasSubstr("<text")));
  EXPECT_EQ(CountOf(svg, "</svg>"), 1);
}

TEST(PictureFile, PngTooLargeIsToldInPixels) {
  const Sink none = [](std::span<const unsigned char>) { return true; };
  const auto result = WritePng(PictureOfGivens(SamplePuzzle()), {.side = 72 * 28}, 1200, none);
  ASSERT_FALSE(result);
  EXPECT_EQ(result.error(), "a picture of 33600 pixels a side is too large: 32767 at most");
}

TEST(PictureFile, SvgDrawsEachDigitOnce) {
  EXPECT_EQ(CountOf(SvgOf(PictureOfGivens(SamplePuzzle())), "<use "), 24);
  EXPECT_EQ(CountOf(SvgOf(PictureOfSolution(SamplePuzzle())), "<use "), kCellCount);
}

TEST(PictureFile, MarksAreRingedOrCrossedOut) {
  BoardPicture picture = PictureOfGivens(SamplePuzzle());
  const int plain = CountOf(SvgOf(picture), "<path ");
  picture.reasons[0] = BitOf(4);
  const int ringed = CountOf(SvgOf(picture), "<path ");
  picture.struck[2] = BitOf(9);
  const int crossed = CountOf(SvgOf(picture), "<path ");
  EXPECT_GT(ringed, plain);
  EXPECT_GT(crossed, ringed);
  EXPECT_EQ(CountOf(SvgOf(picture), "<use "), 24 + 2);
}

TEST(PictureFile, CellsWithADigitShowNoMarks) {
  BoardPicture picture = PictureOfGivens(SamplePuzzle());
  const std::string plain = SvgOf(picture);
  picture.marks[1] = kAllCandidates;
  EXPECT_TRUE(SvgOf(picture) == plain);
}

TEST(PictureFile, HousesHighlightsAndCaptionsChangeThePicture) {
  const BoardPicture plain = PictureOfGivens(SamplePuzzle());
  BoardPicture area = plain;
  area.areas = {CellSet::Of(0) | CellSet::Of(1)};
  BoardPicture twice = area;
  twice.areas.push_back(CellSet::Of(5));
  EXPECT_THAT(SvgOf(area), Not(HasSubstr("stroke-dasharray")));
  EXPECT_THAT(SvgOf(twice), HasSubstr("stroke-dasharray"));
  BoardPicture captions = plain;
  captions.captions = true;
  EXPECT_EQ(CountOf(SvgOf(captions), "<use "), 24 + 2 * kSide);
}

TEST(PictureFile, SamePictureSameBytes) {
  const BoardPicture picture = PictureOfGivens(SamplePuzzle());
  EXPECT_TRUE(SvgOf(picture) == SvgOf(picture));
  EXPECT_TRUE(PngOf(picture, 100) == PngOf(picture, 100));
}

TEST(PictureFile, PngHasTheAskedNumberOfPixels) {
  const std::string png = PngOf(PictureOfGivens(SamplePuzzle()), 150);
  ASSERT_GT(png.size(), 24u);
  EXPECT_EQ(png.substr(1, 3), "PNG");
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(png[at]); };
  EXPECT_EQ(byte(18) * 256 + byte(19), 300);
  EXPECT_EQ(byte(22) * 256 + byte(23), 300);
}

TEST(PictureFile, PencilMarksAreTheCandidatesThatPeersLeave) {
  const Puzzle puzzle = SamplePuzzle();
  const MaskBoard marks = PencilMarksOf(puzzle.layout, puzzle.givens);
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (puzzle.givens[cell] != 0) {
      EXPECT_EQ(marks[cell], 0);
    } else {
      EXPECT_TRUE(Holds(marks[cell], (*puzzle.solution)[cell]));
    }
  }
  EXPECT_FALSE(Holds(marks[0], 8));
}

}  // namespace
}  // namespace tessel::paper
