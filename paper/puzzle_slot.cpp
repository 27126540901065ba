#include "paper/puzzle_slot.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "paper/booklet_plan.h"
#include "paper/text.h"

namespace tessel::paper {

namespace {

constexpr char kParagraph[] = "P";

std::string Rounded(double value) {
  return std::to_string(std::lround(value));
}

// Puzzles are the destinations p1, p2, …, solutions s1, s2, …
std::string NameOf(char kind, int number) {
  return std::string{'\'', kind}.append(std::to_string(number)).append(1, '\'');
}

void MarkDestination(cairo_t* context, char kind, int number, const Box& at) {
  const std::string attributes =
      "name=" + NameOf(kind, number) + " x=" + Rounded(at.x) + " y=" + Rounded(at.y);
  cairo_tag_begin(context, CAIRO_TAG_DEST, attributes.c_str());
  cairo_tag_end(context, CAIRO_TAG_DEST);
}

// Makes `area` a link. It stands in a paragraph because Cairo 1.16 writes a broken file for links
// that stand in no element of structure.
void LinkTo(cairo_t* context, char kind, int number, const Box& area) {
  const std::string attributes = "dest=" + NameOf(kind, number) + " rect=[" + Rounded(area.x) +
                                 " " + Rounded(area.y) + " " + Rounded(area.width) + " " +
                                 Rounded(area.height) + "]";
  cairo_tag_begin(context, kParagraph, nullptr);
  cairo_tag_begin(context, CAIRO_TAG_LINK, attributes.c_str());
  cairo_tag_end(context, CAIRO_TAG_LINK);
  cairo_tag_end(context, kParagraph);
}

std::string FactsOf(const BookletPuzzle& puzzle, const BookletOptions& options) {
  std::string facts;
  if (options.showGrade && puzzle.grade) facts = puzzle.grade->name;
  if (options.showGivens) {
    const auto empty = std::ranges::count(puzzle.puzzle.givens, 0);
    if (!facts.empty()) facts += "  \u00b7  ";
    facts += std::to_string(kCellCount - empty) + " givens";
  }
  return facts;
}

// The number stands bold above the board's left edge, what is told of the puzzle at its right edge.
void DrawHeading(const SlotContext& in, const Box& heading, int number, const std::string& facts) {
  const TextStyle bold{Face::kBold, in.headingSize};
  const TextStyle light{Face::kRegular, 0.86 * in.headingSize, 0.35};
  const double baseline = heading.Bottom() - 0.5 * in.headingSize;
  const std::string name = std::to_string(number);
  DrawText(in.context, in.fonts, name, bold, {heading.x, baseline});
  const double room = heading.width - WidthOf(in.fonts, name, bold) - in.headingSize;
  DrawText(in.context, in.fonts, Shortened(in.fonts, facts, light, room), light,
           {heading.Right(), baseline}, Align::kRight);
}

void DrawUpsideDown(const SlotContext& in, const Puzzle& puzzle, const Box& place) {
  BoardStyle style = BoardStyleOf(in.options, place.width);
  style.tint = Tint::kNone;
  cairo_save(in.context);
  cairo_translate(in.context, place.x + place.width / 2, place.y + place.height / 2);
  cairo_rotate(in.context, std::numbers::pi);
  DrawBoard(in.context, in.fonts, PictureOfSolution(puzzle), style,
            {-place.width / 2, -place.height / 2});
  cairo_restore(in.context);
}

}  // namespace

void DrawPuzzleSlot(const SlotContext& in, const BookletPuzzle& puzzle, int number,
                    const Slot& slot) {
  MarkDestination(in.context, 'p', number, slot.heading);
  DrawHeading(in, slot.heading, number, FactsOf(puzzle, in.options));
  if (in.linked) LinkTo(in.context, 's', number, slot.heading);
  BoardPicture picture = PictureOfGivens(puzzle.puzzle);
  if (in.options.marks) picture.marks = PencilMarksOf(picture.layout, picture.digits);
  DrawBoard(in.context, in.fonts, picture, BoardStyleOf(in.options, slot.board.width),
            {slot.board.x, slot.board.y});
  if (in.options.solutions == Solutions::kBelow && puzzle.puzzle.solution) {
    DrawUpsideDown(in, puzzle.puzzle, slot.solution);
  }
}

void DrawSolutionSlot(const SlotContext& in, const BookletPuzzle& puzzle, int number,
                      const Slot& slot) {
  MarkDestination(in.context, 's', number, slot.heading);
  const Box whole{slot.heading.x, slot.heading.y, slot.heading.width,
                  slot.heading.height + slot.board.height};
  LinkTo(in.context, 'p', number, whole);
  DrawHeading(in, slot.heading, number, {});
  DrawBoard(in.context, in.fonts, PictureOfSolution(puzzle.puzzle),
            BoardStyleOf(in.options, slot.board.width), {slot.board.x, slot.board.y});
}

}  // namespace tessel::paper
