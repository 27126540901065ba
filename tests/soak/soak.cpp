// Makes and plays puzzles for a given time, with everything checked, and watches the memory.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "tests/shell/random_user.h"
#include "tests/soak/memory.h"
#include "tests/soak/player.h"

namespace tessel {
namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr long kEventsOfASession = 2'000;
#ifdef __SANITIZE_ADDRESS__
constexpr long kMaxGrowth = 1024 * 1024;  // freed memory is kept back
#else
constexpr long kMaxGrowth = 4'096;  // kilobytes, after the first tenth of the time
#endif

class Soak {
 public:
  explicit Soak(std::chrono::duration<double> time)
      : begin_(SteadyClock::now()), time_(time), nextReport_(0.1) {}

  void Run(std::uint64_t seed) {
    Player player(seed);
    RandomUser user(seed);
    while (Passed() < 1 && !testing::Test::HasFailure()) {
      player.MakePuzzle();
      player.PlayGame();
      player.BringPuzzle();
      player.PlayGame();
      const std::string story = user.Play(kEventsOfASession);
      if (!story.empty()) ADD_FAILURE() << story;
      if (Passed() < 0.1 || settled_ == 0) settled_ = ResidentKilobytes();
      if (Passed() >= nextReport_ && Passed() < 1) Report(player, user);
    }
    Report(player, user);
    EXPECT_LE(ResidentKilobytes() - settled_, kMaxGrowth) << "kilobytes of growth";
  }

 private:
  double Passed() const { return (SteadyClock::now() - begin_) / time_; }
  void Report(const Player& player, const RandomUser& user) {
    nextReport_ += 0.1;
    const Player::Counts& made = player.made;
    const RandomUser::Counts& clicked = user.Made();
    std::printf(
        "%3.0f%%: %ld puzzles (%ld stops), %ld games, %ld hints, %ld mistakes, %ld repairs, "
        "%ld digits without a hint, %ld events, %ld opened, %ld undone, %ld continued; random "
        "users: %ld events (%ld in pumps, %ld in questions), %ld puzzles, %ld games; %ld KB, grown "
        "by %ld KB\n",
        100 * std::min(Passed(), 1.0), made.puzzles, made.stops, made.games, made.hints,
        made.mistakes, made.repairs, made.digitsWithoutHint, made.events, made.opened, made.undone,
        made.continued, clicked.events, clicked.insidePumps, clicked.insideQuestions,
        clicked.puzzles, clicked.gamesFinished, ResidentKilobytes(),
        ResidentKilobytes() - settled_);
    std::fflush(stdout);
  }

  SteadyClock::time_point begin_;
  std::chrono::duration<double> time_;
  double nextReport_;
  long settled_ = 0;  // the memory when everything has been used once
};

}  // namespace
}  // namespace tessel

// soak [minutes [seed]]
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const double minutes = argc > 1 ? std::atof(argv[1]) : 60;
  const auto seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  tessel::Soak(std::chrono::duration<double, std::ratio<60>>(minutes)).Run(seed);
  return testing::Test::HasFailure() ? 1 : 0;
}
