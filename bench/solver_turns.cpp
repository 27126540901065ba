// The solver on every path of this machine against the engine of the window, in turns: the same
// layouts, sawn from seeds, none left out.
//   solver_turns [PUZZLES [TURNS [LAYOUTS SAWN [UNFILLABLE LAYOUTS]]]]
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "bench/cpu_time.h"
#include "bench/distribution.h"
#include "bench/engine.h"
#include "solver/conceal.h"
#include "solver/fillable.h"

namespace tessel::bench {
namespace {

// Iterations after which the window's engine took a layout to have no filling.
constexpr std::int64_t kRestartBudget = 400'000;
constexpr std::uint64_t kNodes = 100'000;

const char* NameOf(LayoutKind kind) {
  constexpr std::array names{"random", "rotational", "regular"};
  return names[static_cast<std::size_t>(kind)];
}

const char* NameOf(solver::Path path) {
  constexpr std::array names{"plain", "AVX2", "AVX-512"};
  return names[static_cast<std::size_t>(path)];
}

struct Sample {
  Layout layout;
  Grid filling{};
  std::uint64_t seed = 0;
};

// Layouts that can be filled, as the walk makes them.
std::vector<Sample> MakeSamples(LayoutKind kind, int count) {
  Engine engine;
  std::vector<Sample> samples;
  for (std::uint64_t seed = 0; std::ssize(samples) < count; ++seed) {
    engine.SawFillableLayout(kind, seed);
    RandomStream random(seed);
    const auto filling = solver::Solver(engine.layout).Fill(random, kNodes);
    samples.push_back({engine.layout, filling.grid, seed});
  }
  return samples;
}

using Work = std::function<void(const Sample&)>;

struct Contender {
  std::string name;
  Work work;
};

std::vector<double> SecondsOfEach(const Work& work, const std::vector<Sample>& samples) {
  std::vector<double> seconds;
  for (const Sample& sample : samples) seconds.push_back(SecondsOf([&] { work(sample); }));
  return seconds;
}

// Of every sample the least time of all turns; the ratio of two means is that of one turn.
void PrintTurns(const char* title, const std::vector<Sample>& samples,
                const std::vector<Contender>& contenders, int turns) {
  std::vector<std::vector<double>> least(contenders.size());
  std::vector<std::vector<double>> ratios(contenders.size());
  for (int turn = 0; turn < turns; ++turn) {
    double first = 0;
    for (std::size_t i = 0; i < contenders.size(); ++i) {
      const auto seconds = SecondsOfEach(contenders[i].work, samples);
      const double mean = Distribution(seconds).Mean();
      if (i == 0) first = mean;
      ratios[i].push_back(first / mean);
      if (turn == 0) least[i] = seconds;
      for (std::size_t k = 0; k < seconds.size(); ++k) {
        least[i][k] = std::min(least[i][k], seconds[k]);
      }
    }
  }
  std::printf("\n%s, %zu, %d turns\n", title, samples.size(), turns);
  std::printf("  %-10s %9s %9s %9s %9s %9s %8s %8s .. most\n", "us", "mean", "median", "99 %",
              "99.9 %", "most", "ratio", "least");
  for (std::size_t i = 0; i < contenders.size(); ++i) {
    const Distribution all(least[i]);
    const Distribution ratio(ratios[i]);
    std::printf("  %-10s %9.2f %9.2f %9.2f %9.2f %9.2f %8.1f %8.1f .. %.1f\n",
                contenders[i].name.c_str(), 1e6 * all.Mean(), 1e6 * all.Median(),
                1e6 * all.Quantile(0.99), 1e6 * all.Quantile(0.999), 1e6 * all.Max(),
                ratio.Median(), ratio.Min(), ratio.Max());
  }
  std::fflush(stdout);
}

// The window's engine first, then the solver on every path.
std::vector<Contender> Contenders(const Work& window,
                                  const std::function<void(solver::Solver&, const Sample&)>& work) {
  std::vector<Contender> contenders{{"window", window}};
  for (const solver::Path path : solver::kPaths) {
    if (!solver::IsAvailable(path)) continue;
    const auto fast = std::make_shared<solver::Solver>(Layout::Regular(), path);
    contenders.push_back(
        {NameOf(path), [fast, work](const Sample& sample) { work(*fast, sample); }});
  }
  return contenders;
}

Layout SawWith(LayoutKind kind, std::uint64_t seed, const AcceptLayout& accept) {
  if (kind == LayoutKind::kRegular) return Layout::Regular();
  const auto symmetry =
      kind == LayoutKind::kRotational ? LayoutSymmetry::kHalfTurn : LayoutSymmetry::kNone;
  SeededRandom random(seed);
  return Saw(symmetry, random, accept).value();
}

void ComparePuzzles(LayoutKind kind, const std::vector<Sample>& samples, int turns) {
  Engine engine;
  const auto byWindow = [&engine, kind](const Sample& sample) {
    engine.layout = SawWith(kind, sample.seed, [&](const Layout& sawn) {
      engine.search.Use(sawn);
      SeededRandom random;
      return RandomRestarts(engine.search, random, engine.progress).Run(kRestartBudget) ==
             RandomRestarts::Result::kFilled;
    });
    engine.FillLayout(sample.seed);
    engine.ConcealSolution(ConcealMode::kSingle, sample.seed);
  };
  // The filling that shows that a layout has one is the puzzle's.
  const auto bySolver = [kind](solver::Solver& fast, const Sample& sample) {
    RandomStream random(sample.seed);
    Grid filling;
    const auto draw = [&](const Layout& sawn) {
      fast.Use(sawn);
      filling = fast.Fill(random, solver::kSawnNodes).grid;
      return filling != Grid{};
    };
    const Layout layout = SawWith(kind, sample.seed, draw);
    if (kind == LayoutKind::kRegular) draw(layout);
    solver::Conceal(fast, filling, solver::ConcealRule::kSingle, random);
  };
  const std::string title = std::string("Puzzles: saw, fill and conceal, ") + NameOf(kind);
  PrintTurns(title.c_str(), samples, Contenders(byWindow, bySolver), turns);
}

void CompareConceal(LayoutKind kind, const std::vector<Sample>& samples, int turns) {
  Engine engine;
  const auto byWindow = [&engine](const Sample& sample) {
    engine.Use(sample.layout);
    engine.solution = sample.filling;
    engine.ConcealSolution(ConcealMode::kSingle, sample.seed);
  };
  const auto bySolver = [](solver::Solver& fast, const Sample& sample) {
    fast.Use(sample.layout);
    SeededRandom random(sample.seed);
    solver::Conceal(fast, sample.filling, solver::ConcealRule::kSingle, random);
  };
  const std::string title = std::string("Conceal, the same questions and puzzles, ") + NameOf(kind);
  PrintTurns(title.c_str(), samples, Contenders(byWindow, bySolver), turns);
}

void CompareFill(LayoutKind kind, const std::vector<Sample>& samples, int turns) {
  Engine engine;
  const auto byWindow = [&engine](const Sample& sample) {
    engine.Use(sample.layout);
    engine.FillLayout(sample.seed);
  };
  const auto bySolver = [](solver::Solver& fast, const Sample& sample) {
    fast.Use(sample.layout);
    RandomStream random(sample.seed);
    fast.Fill(random, kNodes);
  };
  const std::string title = std::string("Filling with the layout's tables, ") + NameOf(kind);
  PrintTurns(title.c_str(), samples, Contenders(byWindow, bySolver), turns);
}

void PrintSeconds(const char* title, std::vector<double> seconds) {
  const Distribution all(std::move(seconds));
  std::printf("\n%s, %zu\n  ms: mean %.4f, median %.4f, 99 %% %.4f, 99.9 %% %.3f, most %.3f\n",
              title, all.Size(), 1e3 * all.Mean(), 1e3 * all.Median(), 1e3 * all.Quantile(0.99),
              1e3 * all.Quantile(0.999), 1e3 * all.Max());
  std::fflush(stdout);
}

void PrintSaw(LayoutKind kind, int layouts) {
  Engine engine;
  std::vector<double> seconds;
  for (int seed = 0; seed < layouts; ++seed) {
    seconds.push_back(
        SecondsOf([&] { engine.SawFillableLayout(kind, static_cast<std::uint64_t>(seed)); }));
  }
  PrintSeconds((std::string("Saw, whole command, ") + NameOf(kind)).c_str(), std::move(seconds));
}

void PrintUnfillable(int layouts) {
  Engine engine;
  std::vector<double> seconds;
  for (std::uint64_t seed = 0; std::ssize(seconds) < layouts; ++seed) {
    engine.SawAnyLayout(LayoutKind::kRandom, seed);
    auto answer = solver::Answer::kUnknown;
    const double taken = SecondsOf([&] { answer = solver::DecideFillable(engine.layout).answer; });
    if (answer == solver::Answer::kNo) seconds.push_back(taken);
  }
  PrintSeconds("Layouts without a filling, decided", std::move(seconds));
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  const auto argument = [&](int i, int usual) { return argc > i ? std::atoi(argv[i]) : usual; };
  const int turns = argument(2, 5);
  std::printf("The solver against the window's engine, processor time\n");
  for (const LayoutKind kind :
       {LayoutKind::kRandom, LayoutKind::kRotational, LayoutKind::kRegular}) {
    const auto samples = MakeSamples(kind, argument(1, 1000));
    ComparePuzzles(kind, samples, turns);
    CompareFill(kind, samples, turns);
    CompareConceal(kind, samples, turns);
  }
  for (const LayoutKind kind : {LayoutKind::kRandom, LayoutKind::kRotational}) {
    PrintSaw(kind, argument(3, 20'000));
  }
  PrintUnfillable(argument(4, 200));
}
