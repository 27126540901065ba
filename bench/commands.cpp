// Whole commands, from seeds, none left out: how long Saw, Fill and Conceal take, and how many
// puzzles a second they make.
#include <cstdio>
#include <cstdlib>

#include "bench/cpu_time.h"
#include "bench/distribution.h"
#include "bench/engine.h"

namespace tessel::bench {
namespace {

struct Stages {
  Distribution saw;
  Distribution fill;
  Distribution conceal;

  double Seconds() const { return saw.Sum() + fill.Sum() + conceal.Sum(); }
};

Stages MakePuzzles(LayoutKind layout, ConcealMode cells, int puzzles) {
  Engine engine;
  std::vector<double> saw;
  std::vector<double> fill;
  std::vector<double> conceal;
  for (int i = 0; i < puzzles; ++i) {
    const auto seed = static_cast<std::uint64_t>(i);
    saw.push_back(SecondsOf([&] { engine.SawFillableLayout(layout, seed); }));
    fill.push_back(SecondsOf([&] { engine.FillLayout(seed); }));
    conceal.push_back(SecondsOf([&] { engine.ConcealSolution(cells, seed); }));
  }
  return {Distribution(saw), Distribution(fill), Distribution(conceal)};
}

void PrintStage(const char* name, const Distribution& seconds) {
  std::printf("  %-10s %9.3f %9.3f %9.3f %9.3f %9.3f\n", name, 1e3 * seconds.Median(),
              1e3 * seconds.Mean(), 1e3 * seconds.Quantile(0.99), 1e3 * seconds.Quantile(0.999),
              1e3 * seconds.Max());
}

void PrintStages(const char* name, const Stages& stages) {
  std::printf("\n%s, %zu puzzles: %.0f a second\n", name, stages.saw.Size(),
              static_cast<double>(stages.saw.Size()) / stages.Seconds());
  std::printf("  %-10s %9s %9s %9s %9s %9s\n", "ms", "median", "mean", "99 %", "99.9 %", "most");
  PrintStage("Saw", stages.saw);
  PrintStage("Fill", stages.fill);
  PrintStage("Conceal", stages.conceal);
  std::fflush(stdout);
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  using tessel::ConcealMode;
  const int puzzles = argc > 1 ? std::atoi(argv[1]) : 5000;
  std::printf("Whole commands without a window, processor time on this machine\n");
  PrintStages("irregular, random", MakePuzzles(LayoutKind::kRandom, ConcealMode::kSingle, puzzles));
  PrintStages("irregular, rotational, concealed in pairs",
              MakePuzzles(LayoutKind::kRotational, ConcealMode::kPairs, puzzles));
  PrintStages("regular", MakePuzzles(LayoutKind::kRegular, ConcealMode::kSingle, puzzles));
}
