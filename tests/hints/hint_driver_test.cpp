// Generated puzzles, played by following the hints and nothing else. Prints how far that leads.
#include <gtest/gtest.h>

#include <iostream>

#include "tests/hints/hint_player.h"

namespace tessel {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int kPuzzles = 25;
#else
constexpr int kPuzzles = 260;
#endif
constexpr int kAskSpecialEvery = 5;

struct Tally {
  int solved = 0;
  int announcements = 0;
  std::map<std::string, int> counts;
};

void PlayOne(TestProgram& program, bool asksSpecialPass, Tally& tally) {
  program.MakePuzzle();
  program.main.Click(Button::CommandSolve);
  ASSERT_TRUE(program.Display().SolveButtonsVisible());
  HintPlayer player(program);
  player.asksSpecialPass = asksSpecialPass;
  if (player.Play()) {
    ++tally.solved;
    ASSERT_EQ(program.State().PlayBoard.Board, program.State().PlayBoard.Solution);
  }
  for (const auto& [hint, count] : player.counts) tally.counts[hint] += count;
  tally.announcements += player.specialAnnouncements;
}

void Print(const std::string& layouts, const Tally& tally) {
  std::cout << layouts << ": the hints solve " << tally.solved << " of " << kPuzzles
            << " puzzles\n";
  for (const auto& [hint, count] : tally.counts) std::cout << "  " << count << "  " << hint << '\n';
  std::cout << "  " << tally.announcements << "  announcements of the special pass\n";
}

// Every other puzzle is concealed in pairs.
void PlayAll(bool regular, std::uint64_t firstSeed) {
  Tally tally;
  for (int puzzle = 0; puzzle < kPuzzles; ++puzzle) {
    const std::uint64_t seed = firstSeed + 10 * static_cast<unsigned>(puzzle);
    SCOPED_TRACE(seed);
    TestProgram program(seed);
    program.Tick(CheckBox::MakeRegular, regular);
    program.Tick(CheckBox::ConcealRotational, puzzle % 2 == 1);
    PlayOne(program, puzzle % kAskSpecialEvery == 0, tally);
    if (testing::Test::HasFailure()) return;
  }
  Print(regular ? "regular" : "irregular", tally);
  EXPECT_GT(tally.solved, 0);
  EXPECT_GT(tally.counts.size(), 10u) << "too few kinds of hints came up";
}

TEST(HintDriver, NoHintIsFalseOnRegularPuzzles) {
  PlayAll(true, 100'000);
}

TEST(HintDriver, NoHintIsFalseOnIrregularPuzzles) {
  PlayAll(false, 200'000);
}

}  // namespace
}  // namespace tessel
