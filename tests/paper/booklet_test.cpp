#include "paper/booklet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "tests/paper/command_output.h"
#include "tests/paper/sample_puzzles.h"

namespace tessel::paper {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

BookletOptions Everything() {
  BookletOptions options;
  options.title = "Rainy Days";
  options.author = "Ann Author";
  options.numberFrom = 101;
  options.showGrade = options.showGivens = options.sections = true;
  options.titlePage = options.rulesPage = true;
  options.date = 1700000000;
  return options;
}

std::string TextOf(const std::string& path, const std::string& arguments = "") {
  return OutputOf("pdftotext -layout " + arguments + " " + path + " -").text;
}

std::string ErrorOf(int count, const BookletOptions& options) {
  const auto pages = WriteBooklet(SamplePuzzles(count), options,
                                  [](std::span<const unsigned char>) { return true; });
  return pages ? "" : pages.error();
}

class BookletOf : public testing::TestWithParam<int> {};

TEST_P(BookletOf, IsASoundFileWithItsFontsInIt) {
  BookletOptions options = Everything();
  options.perPage = GetParam();
  const TemporaryFile pdf("sound.pdf", BookletBytes(SamplePuzzles(13), options));
  const CommandOutput check = OutputOf("qpdf --check " + pdf.Path());
  EXPECT_EQ(check.status, 0) << check.text;
  EXPECT_THAT(check.text, Not(HasSubstr("WARNING")));
  const std::string fonts = OutputOf("pdffonts " + pdf.Path()).text;
  EXPECT_THAT(fonts, ContainsRegex("Lato-Bold +TrueType +[A-Za-z]+ +yes yes yes"));
  EXPECT_THAT(fonts, Not(ContainsRegex(" no +(yes|no) +(yes|no) ")));
}

INSTANTIATE_TEST_SUITE_P(PerPage, BookletOf, testing::Values(1, 2, 4, 6, 12));

TEST(Booklet, SameInputSameBytes) {
  const auto puzzles = SamplePuzzles(9);
  EXPECT_TRUE(BookletBytes(puzzles, Everything()) == BookletBytes(puzzles, Everything()));
}

TEST(Booklet, SameBytesInWhateverOrderItsCodesAreMade) {
  const auto puzzles = SamplePuzzles(9);
  const auto bytes = [&](int pause) {
    BookletOptions options = Everything();
    options.link = [pause](const Puzzle&, int number) {
      std::this_thread::sleep_for(std::chrono::milliseconds(pause * (7 * number % 5)));
      return "code " + std::to_string(number);
    };
    return BookletBytes(puzzles, options);
  };
  EXPECT_TRUE(bytes(0) == bytes(3));
}

TEST(Booklet, TellsTitleAuthorAndTheGivenDate) {
  const TemporaryFile pdf("facts.pdf", BookletBytes(SamplePuzzles(1), Everything()));
  const std::string facts = OutputOf("TZ=UTC pdfinfo " + pdf.Path()).text;
  EXPECT_THAT(facts, ContainsRegex("Title: +Rainy Days"));
  EXPECT_THAT(facts, ContainsRegex("Author: +Ann Author"));
  EXPECT_THAT(facts, ContainsRegex("CreationDate: +Tue Nov 14 22:13:20 2023"));
}

TEST(Booklet, ShowsNumbersGradesAndGivens) {
  const TemporaryFile pdf("texts.pdf", BookletBytes(SamplePuzzles(4), Everything()));
  const std::string text = TextOf(pdf.Path());
  EXPECT_THAT(text, HasSubstr("Rainy Days"));
  EXPECT_THAT(text, HasSubstr("4 puzzles"));
  EXPECT_THAT(text, HasSubstr("How to play"));
  EXPECT_THAT(text, ContainsRegex("101 +Easy +\u00b7 +24 givens"));
  EXPECT_THAT(text, ContainsRegex("103 +Tricky +\u00b7 +24 givens"));
  EXPECT_THAT(text, ContainsRegex("104 +24 givens"));
}

TEST(Booklet, SolutionsFollowWithTheSameNumbers) {
  BookletOptions options = Everything();
  options.titlePage = options.rulesPage = options.sections = false;
  const TemporaryFile pdf("solutions.pdf", BookletBytes(SamplePuzzles(5), options));
  const std::string last = TextOf(pdf.Path(), "-f 3 -l 3");
  EXPECT_THAT(last, ContainsRegex("Solutions"));
  EXPECT_THAT(last, ContainsRegex("101 +102 +103 +104"));
  EXPECT_THAT(last, ContainsRegex("4 +8 +9 +7 +3 +2 +6 +5 +1"));
}

TEST(Booklet, PuzzlesAndSolutionsAreLinked) {
  const TemporaryFile pdf("links.pdf", BookletBytes(SamplePuzzles(5), Everything()));
  const std::string places = OutputOf("pdfinfo -dests " + pdf.Path()).text;
  for (const char* const name : {"\"p101\"", "\"p105\"", "\"s101\"", "\"s105\""}) {
    EXPECT_THAT(places, HasSubstr(name));
  }
  const TemporaryFile plain("plain.pdf", OutputOf("qpdf --qdf " + pdf.Path() + " -").text);
  const CommandOutput links = OutputOf("grep -a -c 'Subtype /Link' " + plain.Path());
  EXPECT_EQ(links.text, "10\n");
}

TEST(Booklet, BookmarksNameTheSectionsInOrder) {
  const TemporaryFile pdf("marks.pdf", BookletBytes(SamplePuzzles(8), Everything()));
  const std::string outline =
      OutputOf("pdftohtml -xml -i -stdout " + pdf.Path() + " | grep '^<item'").text;
  EXPECT_EQ(outline,
            "<item page=\"1\">Title</item>\n"
            "<item page=\"2\">How to play</item>\n"
            "<item page=\"3\">Easy</item>\n"
            "<item page=\"4\">Moderate</item>\n"
            "<item page=\"5\">Tricky</item>\n"
            "<item page=\"6\">Without a grade</item>\n"
            "<item page=\"7\">Solutions</item>\n");
}

TEST(Booklet, AProgramForCodesReadsTheLink) {
  const auto link = [](const Puzzle&, int number) {
    return "https://example.org/" + std::string(740, 'x') + "/" + std::to_string(number);
  };
  BookletOptions options;
  options.link = link;
  const TemporaryFile pdf("codes.pdf", BookletBytes(SamplePuzzles(4), options));
  const TemporaryFile picture("codes.png", "");
  const std::string stem = picture.Path().substr(0, picture.Path().size() - 4);
  // The second smooths what it enlarges.
  for (const std::string viewer : {"pdftoppm", "pdftocairo"}) {
    OutputOf(viewer + " -r 150 -f 1 -l 1 -singlefile -png " + pdf.Path() + " " + stem);
    const std::string read = OutputOf("zbarimg -q --raw " + picture.Path()).text;
    for (int number = 1; number <= 4; ++number) {
      EXPECT_THAT(read, HasSubstr(link(SamplePuzzle(), number))) << viewer;
    }
  }
}

// The slower the earlier its place: codes that are made ahead must not change theirs.
TEST(Booklet, EachPageHasTheCodesOfItsOwnPuzzles) {
  auto puzzles = SamplePuzzles(8);
  for (std::size_t k = 0; k < puzzles.size(); ++k) {
    puzzles[k].puzzle.givens = {static_cast<std::uint8_t>(k + 1)};
    puzzles[k].grade = PrintedGrade{k % 2 == 0 ? 2 : 1, k % 2 == 0 ? "Hard" : "Easy"};
  }
  BookletOptions options{.perPage = 1, .numberFrom = 11, .sections = true};
  options.link = [](const Puzzle& puzzle, int number) {
    std::this_thread::sleep_for(std::chrono::milliseconds(2 * (19 - number)));
    return "given " + std::to_string(puzzle.givens[0]) + ", number " + std::to_string(number);
  };
  const TemporaryFile pdf("own.pdf", BookletBytes(puzzles, options));
  const TemporaryFile picture("own.png", "");
  const std::string stem = picture.Path().substr(0, picture.Path().size() - 4);
  std::string read;
  for (int page = 1; page <= 8; ++page) {
    const std::string pages = " -f " + std::to_string(page) + " -l " + std::to_string(page);
    OutputOf("pdftoppm -r 100 -singlefile -png" + pages + " " + pdf.Path() + " " + stem);
    read += OutputOf("(zbarimg -q --raw " + picture.Path() + " 2>/dev/null)").text;
  }
  EXPECT_EQ(read,
            "given 2, number 11\ngiven 4, number 12\ngiven 6, number 13\ngiven 8, number 14\n"
            "given 1, number 15\ngiven 3, number 16\ngiven 5, number 17\ngiven 7, number 18\n");
}

TEST(Booklet, ALinkThatFailsEndsTheWork) {
  BookletOptions options;
  options.link = [](const Puzzle&, int number) {
    return number < 20 ? std::string("link") : throw std::runtime_error("no such link");
  };
  const auto taken = [](std::span<const unsigned char>) { return true; };
  EXPECT_THROW(std::ignore = WriteBooklet(SamplePuzzles(40), options, taken), std::runtime_error);
}

TEST(Booklet, PuzzlesWithoutASolutionHaveNone) {
  auto puzzles = SamplePuzzles(3);
  puzzles[1].puzzle.solution.reset();
  const TemporaryFile pdf("some.pdf", BookletBytes(puzzles, BookletOptions{}));
  const std::string places = OutputOf("pdfinfo -dests " + pdf.Path()).text;
  EXPECT_THAT(places, HasSubstr("\"s1\""));
  EXPECT_THAT(places, Not(HasSubstr("\"s2\"")));
  EXPECT_EQ(OutputOf("qpdf --check " + pdf.Path()).status, 0);
}

TEST(Booklet, UpsideDownSolutionsNeedNoPagesAtTheBack) {
  BookletOptions options;
  options.solutions = Solutions::kBelow;
  const TemporaryFile pdf("below.pdf", BookletBytes(SamplePuzzles(4), options));
  EXPECT_THAT(OutputOf("pdfinfo " + pdf.Path()).text, ContainsRegex("Pages: +1\n"));
}

TEST(Booklet, LongTitlesAreWrappedAndShortened) {
  BookletOptions options = Everything();
  options.title.clear();
  for (int k = 0; k < 60; ++k) options.title += "A Title Without End ";
  options.title += std::string(300, 'W');
  const TemporaryFile pdf("long.pdf", BookletBytes(SamplePuzzles(1), options));
  EXPECT_EQ(OutputOf("qpdf --check " + pdf.Path()).status, 0);
  EXPECT_THAT(TextOf(pdf.Path(), "-f 3 -l 3"), HasSubstr("\u2026"));
}

TEST(Booklet, PagesTooSmallAreRefusedWithTheReason) {
  BookletOptions options;
  options.page = {148 * kPointsPerMillimetre, 100 * kPointsPerMillimetre};
  options.perPage = 12;
  EXPECT_THAT(ErrorOf(12, options), HasSubstr("the page is too small: 12 a page leaves digits of"));
  options.margins = {400, 400, 400, 400};
  EXPECT_THAT(ErrorOf(12, options), HasSubstr("has no room"));
}

TEST(Booklet, LargePrintHasDigitsOfSixteenPointsOrIsRefused) {
  BookletOptions options;
  options.large = true;
  EXPECT_EQ(ErrorOf(4, options), "");
  options.perPage = 12;
  EXPECT_THAT(ErrorOf(4, options), HasSubstr("16.0 are needed"));
}

TEST(Booklet, RefusesWhatCannotBePrinted) {
  BookletOptions options;
  EXPECT_THAT(ErrorOf(0, options), HasSubstr("no puzzle"));
  options.title = "\xFF";
  EXPECT_THAT(ErrorOf(1, options), HasSubstr("title is not UTF-8"));
  options.title.clear();
  options.link = [](const Puzzle&, int) { return std::string(3000, 'x'); };
  EXPECT_THAT(ErrorOf(1, options), HasSubstr("3000 bytes"));
}

TEST(Booklet, ASinkThatRefusesEndsTheWork) {
  int calls = 0;
  const auto pages = WriteBooklet(SamplePuzzles(100), BookletOptions{},
                                  [&](std::span<const unsigned char>) { return ++calls < 100; });
  ASSERT_FALSE(pages);
  EXPECT_EQ(pages.error(), "the output cannot be written");
  EXPECT_EQ(calls, 100);
}

}  // namespace
}  // namespace tessel::paper
