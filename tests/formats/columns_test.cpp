#include "formats/columns.h"

#include <gtest/gtest.h>

#include "tests/formats/example.h"

namespace tessel::formats {
namespace {

TEST(Columns, HeaderOfTrainingLoaders) {
  const Columns columns = ColumnsNamed("source,question,answer,rating").value();
  DescribedPuzzle puzzle = Example();
  puzzle.rating = Rating{4, "Quad", 1230};
  EXPECT_EQ(CsvHeader(columns), "source,question,answer,rating\n");
  EXPECT_EQ(CsvLine(puzzle, columns), "tessel," + std::string(kExampleGivens) + "," +
                                          std::string(kExampleSolution) + ",1230\n");
}

TEST(Columns, ValuesThatNeedItStandInQuotes) {
  DescribedPuzzle puzzle = Example();
  puzzle.title = "one, \"two\"";
  const Columns columns = ColumnsNamed("source,level").value();
  EXPECT_EQ(CsvLine(puzzle, columns), "\"one, \"\"two\"\"\",\n");
  EXPECT_EQ(JsonLine(puzzle, columns), "{\"source\":\"one, \\\"two\\\"\",\"level\":null}\n");
}

TEST(Columns, AnUnknownNameIsTold) {
  EXPECT_EQ(ColumnsNamed("index,nonsense").error(), "nonsense");
  EXPECT_EQ(ColumnsNamed("index,").error(), "");
}

}  // namespace
}  // namespace tessel::formats
