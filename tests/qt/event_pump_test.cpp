#include "shell/qt/event_pump.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(EventPump, NothingIsDueRightAfterARound) {
  EventPump pump;
  pump.Done();
  for (int i = 0; i < 31; ++i) EXPECT_FALSE(pump.Due());
}

TEST(EventPump, QuietWorkIsInterruptedAgainAndAgain) {
  EventPump pump;
  for (int round = 0; round < 3; ++round) {
    while (!pump.Due()) continue;
    pump.Done();
  }
}

}  // namespace
}  // namespace tessel
