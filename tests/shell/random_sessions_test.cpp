// 240,000 events of random users, each followed by a check of everything promised.
#include <gtest/gtest.h>

#include "tests/shell/random_user.h"

namespace tessel {
namespace {

constexpr long kEventsOfASession = 20'000;

class RandomSessions : public testing::TestWithParam<int> {};

TEST_P(RandomSessions, KeepEveryPromise) {
  RandomUser user(static_cast<std::uint64_t>(GetParam()));
  EXPECT_EQ(user.Play(kEventsOfASession), "");
  const RandomUser::Counts& made = user.Made();
  EXPECT_GE(made.events, kEventsOfASession);
  EXPECT_GT(made.insidePumps, 200);
  EXPECT_GT(made.insideQuestions, 20);
  EXPECT_GT(made.whileSolving, 2'000);
  EXPECT_GT(made.puzzles, 5);
  EXPECT_GT(made.gamesFinished, 5);
  EXPECT_GT(made.programs, 3);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSessions, testing::Range(1, 13));

}  // namespace
}  // namespace tessel
