// Every hint that the ladder can give, reached through the button on recorded boards.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <utility>

#include "shell/hint_techniques.h"
#include "tests/hints/solving_program.h"

namespace tessel {
namespace {

int KindOf(const RecordedBoard& board) {
  return std::stoi(board.purpose.substr(std::string("kind ").size()));
}

std::vector<RecordedBoard> BoardsOfKind(int kind) {
  std::vector<RecordedBoard> boards;
  for (const RecordedBoard& board : ReadRecordedBoards()) {
    if (KindOf(board) == kind) boards.push_back(board);
  }
  return boards;
}

class HintOfKind : public testing::TestWithParam<int> {};

TEST_P(HintOfKind, SentenceCaptionsAndSound) {
  SolvingProgram program;
  std::set<std::string> boardsSeen;
  for (const RecordedBoard& board : BoardsOfKind(GetParam())) {
    SCOPED_TRACE(board.purpose + ": " + board.text);
    program.Play(board);
    EXPECT_EQ(program.Hint(), board.text);
    EXPECT_EQ(program.Red(), board.red);
    EXPECT_EQ(program.sounds, std::vector<int>{board.sound});
    EXPECT_EQ(static_cast<int>(program.State().HintKind), GetParam());
    EXPECT_EQ(program.ButtonCaption(), "Hint");
    EXPECT_EQ(program.State().Candidates, board.marks) << "a hint only tells";
    EXPECT_EQ(program.State().PlayBoard, board.puzzle) << "a hint only tells";
    boardsSeen.insert(board.text + program.Red());
  }
  EXPECT_GE(boardsSeen.size(), 3u);
}

INSTANTIATE_TEST_SUITE_P(Codes, HintOfKind, testing::Range(1, 18));

TEST(RecordedBoards, HoldEverySubsetInEveryHouse) {
  std::set<std::string> purposes;
  for (const RecordedBoard& board : ReadRecordedBoards()) purposes.insert(board.purpose);
  for (const std::string kind : {"8", "9", "10"}) {
    for (const std::string size : {"pair", "triple", "quad"}) {
      EXPECT_TRUE(purposes.contains("kind " + kind + " naked " + size));
    }
  }
  for (const std::string kind : {"11", "12", "13"}) {
    for (const std::string size : {"pair", "triple"}) {
      EXPECT_TRUE(purposes.contains("kind " + kind + " hidden " + size));
    }
  }
}

// The rungs in the order in which they are asked, each by itself. Quints are left out: whenever
// there is one there is a quad, which comes first.
std::vector<int> RungsThatFind(GameState& state) {
  HintTechniques techniques(state);
  const std::vector<bool> finds{techniques.NakedSingle(),
                                techniques.HiddenSingle(),
                                techniques.PointingPair(),
                                techniques.BoxLine(),
                                techniques.NakedHidden(Subset::kNaked, CountSubset{2}),
                                techniques.NakedHidden(Subset::kNaked, CountSubset{3}),
                                techniques.NakedHidden(Subset::kHidden, CountSubset{2}),
                                techniques.NakedHidden(Subset::kNaked, CountSubset{4}),
                                techniques.NakedHidden(Subset::kHidden, CountSubset{3}),
                                techniques.XWing(),
                                techniques.SwordFish()};
  std::vector<int> rungs;
  for (std::size_t rung = 0; rung < finds.size(); ++rung) {
    if (finds[rung]) rungs.push_back(static_cast<int>(rung));
  }
  return rungs;
}

int RungOf(const RecordedBoard& board) {
  static const std::map<std::string, int> kOfSubset{
      {"pair", 4}, {"triple", 5}, {"hidden pair", 6}, {"quad", 7}, {"hidden triple", 8}};
  const int kind = KindOf(board);
  if (kind == 1) return 0;
  if (kind <= 4) return 1;
  if (kind == 5) return 2;
  if (kind <= 7) return 3;
  if (kind >= 16) return 10;
  if (kind >= 14) return 9;
  const bool hidden = board.purpose.find("hidden") != std::string::npos;
  const std::string size = board.purpose.substr(board.purpose.rfind(' ') + 1);
  return kOfSubset.at(hidden ? "hidden " + size : size);
}

TEST(HintLadder, EveryRungComesBeforeTheNext) {
  SolvingProgram program;
  std::set<std::pair<int, int>> neighboursSeen;
  for (const RecordedBoard& board : ReadRecordedBoards()) {
    program.Play(board);
    const std::vector<int> rungs = RungsThatFind(program.State());
    ASSERT_FALSE(rungs.empty()) << board.purpose;
    EXPECT_EQ(rungs[0], RungOf(board)) << board.purpose;
    if (rungs.size() > 1) neighboursSeen.insert({rungs[0], rungs[1]});
    EXPECT_EQ(program.Hint(), board.text);
  }
  for (int rung = 0; rung < 10; ++rung) {
    EXPECT_TRUE(neighboursSeen.contains({rung, rung + 1})) << "no board shows it for rung " << rung;
  }
}

}  // namespace
}  // namespace tessel
