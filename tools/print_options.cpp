#include "tools/print_options.h"

#include <algorithm>

#include "formats/sudokupad.h"
#include "paper/page_size.h"
#include "tools/document.h"
#include "tools/failure.h"

namespace tessel::tools {

namespace {

using paper::Solutions;
using paper::Tint;

template <typename T>
T Parsed(tl::expected<T, std::string> value) {
  if (!value) throw WrongOptions(value.error());
  return *std::move(value);
}

// A link that opens the puzzle on a phone.
std::string PhoneLink(const Puzzle& puzzle, int number) {
  formats::DescribedPuzzle described{.puzzle = puzzle};
  described.title = "No. " + std::to_string(number);
  formats::Writing link = formats::WriteSudokuPad(described);
  if (!link) throw Failure(link.error());
  while (link->ends_with('\n')) link->pop_back();
  return *link;
}

Solutions SolutionsNamed(const std::string& name) {
  return name == "back" ? Solutions::kBack : name == "below" ? Solutions::kBelow : Solutions::kNone;
}

Tint TintNamed(const std::string& name) {
  return name == "grey" ? Tint::kGrey : name == "colour" ? Tint::kColour : Tint::kNone;
}

void DeclarePages(PrintOptions& options, CLI::App& app) {
  app.add_option("--page", options.page, "A4, A5, Letter, Legal, or like 6x9in, 210x297mm")
      ->type_name("SIZE");
  app.add_option("--per-page", options.perPage, "Puzzles a page: 1, 2, 4, 6 or 12")
      ->check(CLI::IsMember({1, 2, 4, 6, 12}))
      ->type_name("N");
  app.add_option("--margins", options.margins,
                 "One length, as 15mm, 0.5in or 36pt; two (top and bottom, sides); or four "
                 "(top, right, bottom, left), parted by commas")
      ->type_name("LENGTHS");
  app.add_option("--gutter", options.gutter,
                 "More margin at the binding; with --mirror by the number of pages if not told")
      ->type_name("LENGTH");
  app.add_flag("--mirror", options.mirror, "Margins of even pages mirror those of odd ones");
}

void DeclareContents(PrintOptions& options, CLI::App& app) {
  app.add_option("--title", options.title, "Title of the booklet")->type_name("TEXT");
  app.add_option("--author", options.author, "Author of the booklet")->type_name("TEXT");
  app.add_flag("--title-page", options.titlePage, "Begin with a title page");
  app.add_flag("--rules", options.rulesPage, "Put a page of rules before the puzzles");
  app.add_option("--number-from", options.numberFrom, "Number of the first puzzle")
      ->check(CLI::Range(0, 1'000'000))
      ->type_name("N");
  app.add_option("--show", options.show, "What to tell above a puzzle: grade, givens")
      ->delimiter(',')
      ->check(CLI::IsMember({"grade", "givens"}))
      ->type_name("WHAT");
  app.add_option("--solutions", options.solutions,
                 "back: at the end, small; below: upside down under the puzzle; none")
      ->check(CLI::IsMember({"back", "below", "none"}))
      ->type_name("WHERE");
  app.add_flag("--sections", options.sections, "A section for each grade, the easiest first");
  app.add_option("--tint", options.tint, "Grounds that tell cages apart: none, grey or colour")
      ->check(CLI::IsMember({"none", "grey", "colour"}))
      ->type_name("TINT");
  app.add_flag("--marks", options.marks, "Print pencil marks: what rows, columns and cages leave");
  app.add_flag("--large", options.large, "Large print: digits of at least 16 points");
  app.add_flag("--qr", options.codes, "Beside each puzzle a QR code that opens it on a phone");
}

}  // namespace

void PrintOptions::Declare(CLI::App& app) {
  input.Declare(app);
  app.add_option("-o,--output", output,
                 "The file to write: a booklet .pdf, or boards .svg or .png (several puzzles: "
                 "board-1.svg, board-2.svg, ...)")
      ->required()
      ->type_name("FILE");
  app.add_flag("--force", force, "Replace output files that exist");
  DeclarePages(*this, app);
  DeclareContents(*this, app);
  app.add_option("--side", side, "Side of a board in .svg and .png")->type_name("LENGTH");
  app.add_option("--dpi", pixelsPerInch, "Pixels an inch of .png")
      ->check(CLI::Range(20.0, 1200.0))
      ->type_name("N");
}

bool PrintOptions::Shows(const std::string& what) const {
  return std::ranges::find(show, what) != show.end();
}

paper::BookletOptions PrintOptions::Booklet() const {
  paper::BookletOptions booklet;
  booklet.page = Parsed(paper::ParsePageSize(page));
  booklet.margins = Parsed(paper::ParseMargins(margins));
  if (!gutter.empty()) booklet.gutter = Parsed(paper::ParseLength(gutter));
  booklet.mirror = mirror;
  booklet.perPage = perPage;
  booklet.title = title;
  booklet.author = author;
  booklet.numberFrom = numberFrom;
  booklet.showGrade = Shows("grade");
  booklet.showGivens = Shows("givens");
  booklet.solutions = SolutionsNamed(solutions);
  booklet.sections = sections;
  booklet.tint = TintNamed(tint);
  booklet.marks = marks;
  booklet.large = large;
  booklet.titlePage = titlePage;
  booklet.rulesPage = rulesPage;
  if (codes) booklet.link = PhoneLink;
  booklet.date = DateOfDocument();
  return booklet;
}

paper::BoardStyle PrintOptions::Picture() const {
  const double points = Parsed(paper::ParseLength(side));
  if (points < 36 || points > 2 * 72 * 36)
    throw WrongOptions("--side must be from 0.5 to 72 inches");
  return {.side = points, .tint = TintNamed(tint), .digitSize = large ? 0.8 : 0.66};
}

}  // namespace tessel::tools
