#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "tests/fakes/temporary_folder.h"
#include "tests/formats/example.h"
#include "tests/tools/command_line.h"

namespace tessel {
namespace {

using formats::ExampleIn;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::StartsWith;

std::string Contents(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Print : public testing::Test {
 protected:
  std::string In(const std::string& name) const { return (folder_.Path() / name).string(); }

  Outcome PrintTo(const std::string& name, std::vector<std::string> options,
                  const std::string& input = ExampleIn("text")) const {
    options.insert(options.begin(), {"print", "-o", In(name)});
    return RunTessel(options, input);
  }

  TemporaryFolder folder_;
};

TEST_F(Print, FindsOutSolutionAndGrade) {
  const Outcome outcome = PrintTo("a.pdf", {"--show", "grade,givens", "--sections"});
  EXPECT_EQ(outcome.code, 0) << outcome.err;
  const std::string text = RunShell("pdftotext -layout " + In("a.pdf") + " -").out;
  EXPECT_THAT(text, ContainsRegex("1 +[A-Z][a-z ]+ +\u00b7 +24 givens"));
  EXPECT_THAT(text, ContainsRegex("4 +8 +9 +7 +3 +2 +6 +5 +1"));
}

TEST_F(Print, TheDateIsThatOfTheEnvironment) {
  for (const std::string name : {"a.pdf", "b.pdf"}) {
    const Outcome outcome =
        RunShell("SOURCE_DATE_EPOCH=1700000000 $tessel print -o " + In(name), ExampleIn("text"));
    EXPECT_EQ(outcome.code, 0) << outcome.err;
  }
  EXPECT_TRUE(Contents(In("a.pdf")) == Contents(In("b.pdf")));
  EXPECT_THAT(RunShell("TZ=UTC pdfinfo " + In("a.pdf")).out, HasSubstr("Nov 14 22:13:20 2023"));
  EXPECT_EQ(RunShell("SOURCE_DATE_EPOCH=soon $tessel print -o " + In("c.pdf")).code, 2);
}

TEST_F(Print, ACodeHoldsTheLinkThatConvertWrites) {
  EXPECT_EQ(PrintTo("a.pdf", {"--qr", "--per-page", "1"}).code, 0);
  RunShell("pdftoppm -r 150 -f 1 -l 1 -singlefile -png " + In("a.pdf") + " " + In("page"));
  const std::string link = RunShell("zbarimg -q --raw " + In("page.png")).out;
  EXPECT_THAT(link, StartsWith("https://sudokupad.app/scl"));
  EXPECT_EQ(RunTessel({"convert", "--to", "text"}, link).out, ExampleIn("text"));
}

TEST_F(Print, AFileThatExistsIsRefusedWithoutForce) {
  std::ofstream(In("a.pdf")) << "mine";
  const Outcome refused = PrintTo("a.pdf", {});
  EXPECT_EQ(refused.code, 1);
  EXPECT_THAT(refused.err, HasSubstr("exists already"));
  EXPECT_EQ(Contents(In("a.pdf")), "mine");
  EXPECT_EQ(PrintTo("a.pdf", {"--force"}).code, 0);
  EXPECT_THAT(Contents(In("a.pdf")), StartsWith("%PDF"));
}

TEST_F(Print, AFailureLeavesNoFile) {
  EXPECT_EQ(PrintTo("a.pdf", {"--page", "40x40mm"}).code, 1);
  EXPECT_EQ(PrintTo("b.pdf", {}, "# nothing\n").code, 1);
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Path()));
}

TEST_F(Print, BoardsAloneAreNumbered) {
  EXPECT_EQ(PrintTo("one.svg", {}).code, 0);
  EXPECT_THAT(Contents(In("one.svg")), HasSubstr("<svg"));
  EXPECT_EQ(PrintTo("two.png", {"--number-from", "7"}, ExampleIn("text") + ExampleIn("text")).code,
            0);
  EXPECT_THAT(Contents(In("two-7.png")), HasSubstr("PNG"));
  EXPECT_TRUE(std::filesystem::exists(In("two-8.png")));
}

TEST_F(Print, WrongOptionsAreTold) {
  EXPECT_EQ(PrintTo("a.gif", {}).code, 2);
  EXPECT_EQ(PrintTo("a.pdf", {"--page", "A3"}).code, 2);
  EXPECT_EQ(PrintTo("a.pdf", {"--per-page", "5"}).code, 2);
  EXPECT_EQ(PrintTo("a.pdf", {"--margins", "wide"}).code, 2);
  EXPECT_EQ(PrintTo("a.svg", {"--side", "1mm"}).code, 2);
}

TEST_F(Print, GoesOnAfterABadLine) {
  const Outcome outcome = PrintTo("a.pdf", {}, "nonsense\n" + ExampleIn("text"));
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.err, HasSubstr("standard input:1:"));
  EXPECT_THAT(Contents(In("a.pdf")), StartsWith("%PDF"));
}

TEST_F(Print, PuzzlesWithoutOneSolutionArePrintedWithoutIt) {
  const std::string empty = std::string(81, '.') + " " + std::string(formats::kExampleCages) + "\n";
  const Outcome outcome = PrintTo("a.pdf", {"--sections"}, empty);
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.err, HasSubstr("printed without a solution, as there are several"));
}

TEST_F(Print, TellsCharactersThatTheFontLacks) {
  const Outcome outcome = PrintTo("a.pdf", {"--title", "\u6570"});
  EXPECT_EQ(outcome.err, "the font has not every character of the title\n");
  EXPECT_EQ(outcome.code, 0);
}

}  // namespace
}  // namespace tessel
