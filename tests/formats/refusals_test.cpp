// Bad input is met like by a good compiler: what was expected, where, and what stands there.
#include <gtest/gtest.h>

#include "formats/link.h"
#include "formats/lz_string.h"
#include "formats/unicode.h"
#include "tests/formats/example.h"
#include "tests/formats/reading.h"

namespace tessel::formats {
namespace {

// The one message about the text.
std::string Message(const std::string& text, std::string_view format) {
  const auto told = Read(text, FormatNamed(format));
  return told.size() == 1 ? told.front() : std::to_string(told.size()) + " messages";
}

std::string Changed(std::string_view text, std::size_t offset, char character) {
  std::string changed(text);
  changed[offset] = character;
  return changed;
}

std::string TextLine(const std::string& givens, const std::string& cages) {
  return givens + " " + cages;
}

const std::string kP(kExampleGivens);
const std::string kC(kExampleCages);
const std::string kNine = "nine cages of nine connected cells";

TEST(Refusals, OfTextLines) {
  const auto message = [](const std::string& line) { return Message(line, "text"); };
  EXPECT_EQ(message(TextLine(Changed(kP, 0, 'A'), kC)),
            "f:1:1: expected a digit 1 to 9 or '.' or '0', found 'A'");
  EXPECT_EQ(message(TextLine(Changed(kP, 4, '0'), kC)),
            "f:1:5: expected a digit 1 to 9 or '.' as before, found '0'");
  EXPECT_EQ(message(TextLine(kP, Changed(kC, 0, '2'))),
            "f:1:84: expected " + kNine + ", found cage '1' with 8 cells");
  EXPECT_EQ(message(TextLine(kP, Changed(kC, 80, '0'))),
            "f:1:163: expected one of the nine cages already named, found '0'");
  EXPECT_EQ(message(TextLine(kP, Changed(kC, 80, '!'))),
            "f:1:163: expected a digit or letter for the cage of r9c9, found '!'");
  EXPECT_EQ(message(TextLine(kP, kC.substr(0, 80))),
            "f:1:163: expected a digit or letter for the cage of r9c9, found the end of the line");
  EXPECT_EQ(message(TextLine(kP, kC) + " " + std::string(kExampleSolution)),
            "f:1:165: expected the end of the line after the cages, found '4'");
  EXPECT_EQ(message(TextLine(Changed(kP, 0, '\xFC'), kC)),
            "f:1:1: expected a digit 1 to 9 or '.' or '0', found byte 0xfc");
}

TEST(Refusals, OfACageInTwoParts) {
  std::string cages = kC;
  std::swap(cages[0], cages[80]);
  EXPECT_EQ(Message(TextLine(kP, cages), "text"),
            "f:1:84: expected " + kNine + ", found cage '1' in separate parts");
}

TEST(Refusals, OfSdm) {
  EXPECT_EQ(Message(kP.substr(0, 80), "sdm"),
            "f:1:81: expected a digit 1 to 9 or '.' as before, found the end of the line");
  EXPECT_EQ(Message(kP + "1", "sdm"),
            "f:1:82: expected the end of the line after 81 cells, found '1'");
}

TEST(Refusals, OfUnknownLines) {
  EXPECT_EQ(Read("hello\n")[0],
            "f:1:1: expected a puzzle in one of the formats that are read, found 'hello'");
}

TEST(Refusals, OfRecords) {
  const std::string record = ExampleIn("sds");
  const auto message = [](const std::string& bytes) { return Message(bytes, "sds"); };
  EXPECT_EQ(message(Changed(record, 82, 1)),
            "f:record 1, byte 83: expected the given 8 of r1c2 in the solution, found 1");
  EXPECT_EQ(message(Changed(record, 81, 0)),
            "f:record 1, byte 82: expected a byte from 1 to 9 for r1c1, found byte 0");
  EXPECT_EQ(message(Changed(record, 162, 2)),
            "f:record 1, byte 164: expected " + kNine + ", found cage 1 has 8 cells instead of 9");
}

TEST(Refusals, OfSolo) {
  const std::string id = ExampleIn("solo");
  const auto message = [](const std::string& line) { return Message(line, "solo"); };
  EXPECT_EQ(message("9x:" + id.substr(3)), "f:1:1: expected 9j, found '9'");
  EXPECT_EQ(message("9jx:" + id.substr(3)),
            "f:1:3: expected ':', symmetry or difficulty, found 'x'");
  EXPECT_EQ(message("9j:a" + id.substr(3)), "f:1:53: expected ',' after 81 cells, found 'a'");
  EXPECT_EQ(message("9j:zz,"), "f:1:6: expected 81 cells instead of 52, found ','");
  EXPECT_EQ(message(id.substr(0, id.find(',') + 1) + "z"),
            "f:1:54: expected a letter a to y or '_', found 'z', which programs read in two ways");
  EXPECT_EQ(message(id.substr(0, id.size() - 3)),
            "f:1:" + std::to_string(id.size() - 2) +
                ": expected a letter a to y or '_' for the next wall, found the end of the line");
}

TEST(Refusals, OfSumoCue) {
  const std::string line = ExampleIn("sumocue");
  const auto message = [](const std::string& text) { return Message(text, "sumocue"); };
  EXPECT_EQ(message(Changed(line, 8, '2')), "f:1:1: expected SumoCueV1, found 'S'");
  EXPECT_EQ(message(Changed(line, 10, 'A')), "f:1:11: expected a digit 0 to 9, found 'A'");
  EXPECT_EQ(message(Changed(line, 12, '9')), "f:1:13: expected a cage 0 to 8, found '9'");
  EXPECT_EQ(message(Changed(line, 12, '1')),
            "f:1:14: expected " + kNine + ", found cage 0 with 8 cells");
}

std::string LinkWith(const std::string& json, const std::string& address) {
  return address + LzCompressed(std::u16string(json.begin(), json.end()));
}
std::string FPuzzles(const std::string& json) {
  return Message(LinkWith(json, "https://f-puzzles.com/?load="), "f-puzzles");
}

TEST(Refusals, OfCutAndDamagedLinks) {
  const std::string link = ExampleIn("sudokupad");
  EXPECT_EQ(Message(link.substr(0, 300), "sudokupad"),
            "f:1:301: expected more of the link, found its end: it was cut");
  EXPECT_EQ(Message(Changed(link, 100, '*'), "sudokupad"),
            "f:1:101: expected a letter of base64, found '*'");
}

TEST(Refusals, OfNumbersThatAreTooLarge) {
  EXPECT_EQ(FPuzzles("{\"size\":1e999}"),
            "f:1:29: in its JSON: expected valid JSON, found number overflow parsing '1e999'");
  EXPECT_LT(FPuzzles(std::string(100'000, '9') + "e999").size(), 300U);
}

TEST(Refusals, NeverShowHalfACharacter) {
  for (int shift = 0; shift < 3; ++shift) {
    std::string title(static_cast<std::size_t>(shift), 'x');
    while (title.size() < 300) title += "\u20AC";
    EXPECT_TRUE(IsUtf8(FPuzzles("{\"title\":\"" + title + "\x01"))) << shift;
  }
}

TEST(Refusals, OfJsonThatIsNone) {
  EXPECT_EQ(FPuzzles("{\"size\":9,"),
            "f:1:29: in its JSON: expected valid JSON, found parse error at line 1, column 11: "
            "syntax error while parsing object key - unexpected end of input; expected string "
            "literal");
  EXPECT_EQ(FPuzzles(std::string(100'000, '[')),
            "f:1:29: in its JSON: expected valid JSON, found lists more than 32 deep");
  EXPECT_EQ(FPuzzles("[]"), "f:1:1: in its JSON, at /size: expected 9, found nothing");
  EXPECT_EQ(FPuzzles("{\"size\":9,\"antiknight\":true}"),
            "f:1:1: in its JSON, at /antiknight: expected no rule besides rows, columns and cages, "
            "found true");
  EXPECT_EQ(FPuzzles("{\"size\":9,\"grid\":[]}"),
            "f:1:1: in its JSON, at /grid: expected a list of nine rows, found []");
}

TEST(Refusals, OfJsonThatUnpacksWithoutEnd) {
  const std::string message = FPuzzles(std::string(30'000'000, ' '));
  EXPECT_NE(message.find("expected at most 1000000 characters of JSON, found more"),
            std::string::npos)
      << message;
}

TEST(Refusals, OfHalfACharacter) {
  const std::u16string text = u"{\"size\":" + std::u16string(1, 0xD800) + u"}";
  EXPECT_EQ(Message("https://f-puzzles.com/?load=" + LzCompressed(text), "f-puzzles"),
            "f:1:29: in its JSON: expected Unicode, found half a character");
}

}  // namespace
}  // namespace tessel::formats
