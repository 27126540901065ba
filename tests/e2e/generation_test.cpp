// From an empty board to a saved puzzle, by mouse, in the real window.
#include <gtest/gtest.h>

#include <thread>

#include "tests/e2e/puzzle_file_reading.h"
#include "tests/e2e/user.h"

namespace tessel {
namespace {

struct Kind {
  const char* name;
  const char* box;  // ticked before the puzzle is made, if any
  bool (*hasItsShape)(const PuzzleRecord&);
};

class PuzzleOfEveryKind : public testing::TestWithParam<Kind> {};

TEST_P(PuzzleOfEveryKind, IsMadeSeenAndSaved) {
  const TemporaryFolder folder;
  InstallProgram(folder.Path());
  User user(folder.Path());
  EXPECT_TRUE(user.SeesCaption("Tessel Sudoku"));
  EXPECT_TRUE(user.SeesBoard(ExpectedBoard::Empty()));
  EXPECT_TRUE(user.SeesStage(Stage::kLayoutNeeded));
  if (GetParam().box != nullptr) user.Press(GetParam().box);

  EXPECT_TRUE(user.RunsCommand(kSaw));
  EXPECT_TRUE(user.SeesStage(Stage::kLayoutMade));
  const QImage sawn = user.LooksAtBoard();
  EXPECT_TRUE(user.RunsCommand(kFill));
  EXPECT_TRUE(user.SeesStage(Stage::kGridFilled));
  const QImage filled = user.LooksAtBoard();
  EXPECT_TRUE(user.RunsCommand(kConceal));
  EXPECT_TRUE(user.SeesStage(Stage::kPuzzleConcealed));

  // The record tells what the board must have shown on the way.
  const PuzzleRecord record = OnlyRecord(folder.PuzzleFile());
  EXPECT_TRUE(IsSoundPuzzle(record));
  EXPECT_TRUE(GetParam().hasItsShape(record));
  EXPECT_TRUE(user.Recognises(sawn, ExpectedBoard::Sawn(record)));
  EXPECT_TRUE(user.Recognises(filled, ExpectedBoard::Filled(record)));
  EXPECT_TRUE(user.SeesBoard(ExpectedBoard::Concealed(record)));
}

INSTANTIATE_TEST_SUITE_P(
    Generation, PuzzleOfEveryKind,
    testing::Values(Kind{"Random", nullptr, [](const PuzzleRecord&) { return true; }},
                    Kind{"Rotational", "Rotational", CagesAreHalfTurnSymmetric},
                    Kind{"Regular", "MakeRegular", CagesAreBoxes},
                    Kind{"ConcealedInPairs", "ConcealRotational", GivensAreHalfTurnSymmetric}),
    [](const auto& kind) { return std::string(kind.param.name); });

TEST(Generation, EveryConcealAppendsARecord) {
  const TemporaryFolder folder;
  InstallProgram(folder.Path());
  User user(folder.Path());
  ASSERT_TRUE(user.MakesPuzzle());
  const std::string first = BytesOf(folder.PuzzleFile());
  std::this_thread::sleep_for(
      std::chrono::milliseconds(500));  // a press sooner would count as a "Stop" that came too late
  ASSERT_TRUE(user.RunsCommand(kConceal));
  const std::string both = BytesOf(folder.PuzzleFile());
  ASSERT_EQ(both.size(), 2 * sizeof(PuzzleRecord));
  EXPECT_EQ(both.substr(0, sizeof(PuzzleRecord)), first);
  EXPECT_TRUE(IsSoundPuzzle(RecordAt(both, sizeof(PuzzleRecord))));
  EXPECT_EQ(RecordAt(both, 0).Solution, RecordAt(both, sizeof(PuzzleRecord)).Solution);
}

}  // namespace
}  // namespace tessel
