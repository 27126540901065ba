// A cage generator with everything around it.
#pragma once

#include <vector>

#include "core/random_source.h"
#include "shell/sawing.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/recording_view.h"

namespace tessel {

enum Direction { kRight = 1, kDown = 2, kLeft = 3, kUp = 4 };

// Walks where it is told to; after that, at random. Seeding changes nothing but a count.
class ScriptedWalk final : public RandomSource {
 public:
  void Seed(std::uint64_t) override { ++seedings; }
  float Next() override {
    if (next_ == script_.size()) return afterwards_.Next();
    return (static_cast<float>(script_[next_++]) - 0.5F) / 4;
  }

  ScriptedWalk& Go(Direction direction, int times = 1) {
    script_.insert(script_.end(), static_cast<std::size_t>(times), direction);
    return *this;
  }
  // The steps of nine cages that are the nine rows, or the nine columns.
  ScriptedWalk& GoNineTimes(Direction direction) { return Go(direction, 72); }
  bool IsOver() const { return next_ == script_.size(); }
  long Length() const { return static_cast<long>(script_.size()); }

  int seedings = 0;

 private:
  std::vector<Direction> script_;
  std::size_t next_ = 0;
  SeededRandom afterwards_{99};
};

struct GeneratorRig {
  explicit GeneratorRig(RandomSource& random, std::uint64_t seed = 1)
      : clock(seed), generator(state, form, view, random, clock, [this](const Layout&) {
          ++judged;
          return !accept || accept();
        }) {
    FillTables(state);
  }

  FakeClock clock;
  RecordingView view;
  GameState state;
  Form form{view};
  std::function<bool()> accept;
  int judged = 0;  // layouts offered to `accept`
  Sawing generator;
};

}  // namespace tessel
