#include "maker/in_order.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <stdexcept>

namespace tessel::maker {
namespace {

using std::chrono::seconds;

// Every worker squares; the batches are taken until none is left.
std::vector<std::uint64_t> Squares(std::uint64_t batches, int threads) {
  InOrder<std::uint64_t> work(batches, threads,
                              [] { return [](std::uint64_t batch) { return batch * batch; }; });
  std::vector<std::uint64_t> squares;
  while (true) {
    const auto taken = work.Next(seconds(60));
    EXPECT_TRUE(taken.ready);
    if (!taken.result) return squares;
    squares.push_back(*taken.result);
  }
}

TEST(InOrder, ResultsComeInTheOrderOfTheirNumbers) {
  for (const int threads : {1, 2, 5}) {
    const auto squares = Squares(200, threads);
    ASSERT_EQ(squares.size(), 200u);
    for (std::uint64_t i = 0; i < 200; ++i) EXPECT_EQ(squares[i], i * i);
  }
}

TEST(InOrder, NothingToDoIsDoneAtOnce) {
  EXPECT_TRUE(Squares(0, 2).empty());
}

TEST(InOrder, WorkersRunOnlyAWindowAhead) {
  std::atomic<std::uint64_t> begun = 0;
  InOrder<int> work(1'000'000, 2, [&] {
    return [&](std::uint64_t) {
      ++begun;
      return 0;
    };
  });
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(work.Next(seconds(60)).result);
  EXPECT_LE(begun, 100u + 16u);
}

TEST(InOrder, AnUnfinishedBatchCanBeLeft) {
  std::atomic<bool> held = true;
  InOrder<int> work(10, 1, [&] {
    return [&](std::uint64_t) {
      while (held) std::this_thread::yield();
      return 7;
    };
  });
  EXPECT_FALSE(work.Next(std::chrono::milliseconds(1)).ready);
  held = false;
  EXPECT_EQ(work.Next(seconds(60)).result, 7);
}

// The second worker is through with batch 1 when it begins batch 2.
TEST(InOrder, ALaterBatchWaitsForTheOneBefore) {
  std::atomic<bool> held = true;
  std::atomic<bool> laterDone = false;
  InOrder<std::uint64_t> work(3, 2, [&] {
    return [&](std::uint64_t batch) {
      if (batch == 2) laterDone = true;
      while (batch == 0 && held) std::this_thread::yield();
      return batch;
    };
  });
  while (!laterDone) std::this_thread::yield();
  EXPECT_FALSE(work.Next(std::chrono::milliseconds(1)).ready);
  held = false;
  for (std::uint64_t batch = 0; batch < 3; ++batch) {
    EXPECT_EQ(work.Next(seconds(60)).result, batch);
  }
}

TEST(InOrder, AWorkersExceptionComesOut) {
  InOrder<int> work(10, 2, [] {
    return [](std::uint64_t batch) -> int {
      if (batch == 3) throw std::runtime_error("no");
      return 0;
    };
  });
  EXPECT_THROW(
      {
        for (int i = 0; i < 10; ++i) work.Next(seconds(60));
      },
      std::runtime_error);
}

}  // namespace
}  // namespace tessel::maker
