#include <gmock/gmock.h>

#include "formats/columns.h"
#include "tests/formats/example.h"
#include "tests/formats/reading.h"

namespace tessel::formats {
namespace {

using testing::EndsWith;
using testing::StartsWith;
using Told = std::vector<std::string>;

TEST(PuzzleReader, TellsFormatsApartLineByLine) {
  std::string text;
  Told expected;
  for (const Format& format : AllFormats()) {
    if (!format.IsRead() || format.name == "sds" || format.name == "sdm") continue;
    text += ExampleIn(format.name);
    expected.push_back("puzzle at " + std::to_string(expected.size() + 1));
  }
  EXPECT_EQ(expected.size(), 5U);
  EXPECT_EQ(Read(text), expected);
}

TEST(PuzzleReader, SkipsEmptyLinesAndComments) {
  EXPECT_EQ(Read("# made by hand \xFF\n\n   \n  #\n" + ExampleIn("text")), Told{"puzzle at 5"});
}

TEST(PuzzleReader, TakesByteOrderMarkAndLinesOfWindows) {
  const std::string line = std::string(kExampleGivens) + "\t" + std::string(kExampleCages);
  EXPECT_EQ(Read("\xEF\xBB\xBF" + line + "\r\n" + line), (Told{"puzzle at 1", "puzzle at 2"}));
}

TEST(PuzzleReader, ReadsTheSameInPiecesOfAnySize) {
  const std::string text = ExampleIn("text") + "nonsense\n" + ExampleIn("solo");
  for (std::size_t piece = 1; piece < 200; piece += 13) {
    EXPECT_EQ(Read(PuzzleReader(SourceOf(text, piece))), Read(text));
  }
}

TEST(PuzzleReader, FindsRecordsByTheirBytes) {
  const std::string record = ExampleIn("sds");
  EXPECT_EQ(Read(record + record), (Told{"puzzle at record 1", "puzzle at record 2"}));
}

TEST(PuzzleReader, NamesFilesThatAreOfNoFormatOnce) {
  using namespace std::string_literals;
  const std::string expected = "f:1:1: expected puzzles, as text in UTF-8 or as .sds, found ";
  EXPECT_EQ(Read("\xFF\xFE\x31\x00\n\x00"s + ExampleIn("text")), Told{expected + "UTF-16"});
  EXPECT_EQ(Read("\x1F\x8B\x08\x00\n"s + ExampleIn("text")), Told{expected + "gzip"});
  EXPECT_EQ(Read("%PDF-1.5\n" + ExampleIn("text")), Told{expected + "PDF"});
}

// Only written, as all of it tells in one line.
void ExpectOnlyWritten(const std::string& text) {
  const Told told = Read(text + "\n" + ExampleIn("text"));
  ASSERT_EQ(told.size(), 1U) << text;
  EXPECT_THAT(told[0], StartsWith("f:1:1: expected puzzles in one of the formats that are read"));
  EXPECT_THAT(told[0], EndsWith("only written"));
}

TEST(PuzzleReader, TellsOnceOfAFormatThatIsOnlyWritten) {
  for (const Format& format : AllFormats()) {
    if (!format.IsRead()) {
      ExpectOnlyWritten(std::string(format.header) + *format.write(Example()));
    }
  }
}

TEST(PuzzleReader, TellsOnceOfTablesOfAnyColumns) {
  for (const char* const names : {"puzzle", "puzzle,solution", "source,question,answer,rating"}) {
    const Columns columns = ColumnsNamed(names).value();
    ExpectOnlyWritten(JsonLine(Example(), columns));
    for (const char* const mark : {"", "\xEF\xBB\xBF"}) {
      ExpectOnlyWritten(mark + CsvHeader(columns) + CsvLine(Example(), columns));
    }
  }
}

TEST(PuzzleReader, GoesOnAfterABadRecord) {
  const std::string record = ExampleIn("sds");
  std::string bad = record;
  bad[3] = 17;
  EXPECT_EQ(Read(record + bad + record),
            (Told{"puzzle at record 1",
                  "f:record 2, byte 4: expected a byte from 0 to 9 for r1c4, found byte 17",
                  "puzzle at record 3"}));
}

TEST(PuzzleReader, TellsARecordThatIsCut) {
  const std::string record = ExampleIn("sds");
  EXPECT_EQ(Read(record + record.substr(0, 200)),
            (Told{"puzzle at record 1",
                  "f:record 2, byte 201: expected a record of 243 bytes, found the end of the file "
                  "after 200"}));
}

TEST(PuzzleReader, TellsWhichTailTheNextPuzzleOverwrites) {
  const std::string record = ExampleIn("sds");
  const auto tail = [&](std::size_t bytes) {
    return Read(record + record.substr(0, bytes)).back();
  };
  const std::string overwritten = "; the next puzzle saved overwrites them";
  for (const std::size_t bytes : {1U, 57U, 121U}) {
    EXPECT_TRUE(tail(bytes).ends_with("after " + std::to_string(bytes) + overwritten)) << bytes;
  }
  EXPECT_TRUE(tail(122).ends_with("after 122"));
}

TEST(PuzzleReader, SkipsALineThatIsTooLong) {
  const std::string text = std::string(100'000'000, '[') + "\n" + ExampleIn("text");
  const Told told = Read(text);
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[0],
            "f:1:1048577: expected the end of the line after a million characters, found more");
  EXPECT_EQ(told[1], "puzzle at 2");
}

TEST(PuzzleReader, NothingIsNoPuzzle) {
  EXPECT_EQ(Read(""), Told{});
  EXPECT_EQ(Read("\n\n"), Told{});
}

}  // namespace
}  // namespace tessel::formats
