// What a try-out may take and when to give a layout up, by measurement: see
// search/random_restarts.h.
//   limits [LAYOUTS [LAYOUTS FOR THE BOUND]]
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "bench/cpu_time.h"
#include "bench/distribution.h"
#include "bench/engine.h"
#include "tests/oracle/search/independent_solver.h"
#include "tests/oracle/search/samples.h"

namespace tessel::bench {
namespace {

constexpr std::int64_t kPatience = 10 * kRestartBudget;
constexpr long kProofNodes = 10'000'000;

class Limit final : public SearchDriver {
 public:
  explicit Limit(std::int64_t iterations) : left_(iterations) {}
  bool BeforeIteration() override { return --left_ >= 0; }
  bool ContinueAfterSolution() override { return false; }

 private:
  std::int64_t left_;
};

// The iterations until a try of at most `limit` ended in a filling; none when all tries together
// took more than `allowed`.
std::optional<std::int64_t> IterationsToFill(Engine& engine, std::int64_t limit,
                                             std::int64_t allowed) {
  SeededRandom random;
  const std::int64_t start = engine.search.Iterations();
  engine.search.Use(engine.layout);
  while (engine.search.Iterations() - start < allowed) {
    engine.search.StartEmpty(oracle::DrawOrder(random));
    Limit driver(limit);
    if (engine.search.Run(driver) == SearchResult::kSolved)
      return engine.search.Iterations() - start;
  }
  return std::nullopt;
}

oracle::Grid OracleGrid(const CageNumbers& cages) {
  oracle::Grid grid{};
  std::ranges::copy(cages, grid.begin());
  return grid;
}

// Nothing when the proof was given up.
std::optional<bool> HasFilling(const Engine& engine) {
  return oracle::IndependentSolver(oracle::LayoutOf(OracleGrid(engine.layout.Cages())))
      .HasFilling(kProofNodes);
}

const char* NameOf(LayoutKind kind) {
  return kind == LayoutKind::kRandom ? "random" : "rotational";
}

// Cuts tries off at each limit, over the same layouts, all of which can be filled.
void PrintTryOutLimits(LayoutKind kind, int layouts) {
  std::printf("\nIterations until one try ends in a filling, %d %s layouts that have one\n",
              layouts, NameOf(kind));
  std::printf("%8s %10s %10s %10s %12s %10s\n", "limit", "median", "mean", "99.9 %", "most",
              "mean ms");
  for (const std::int64_t limit : {125, 250, 500, 1000, 2000, 20'000}) {
    Engine engine;
    std::vector<double> iterations;
    double seconds = 0;
    for (std::uint64_t seed = 0; std::ssize(iterations) < layouts; ++seed) {
      engine.SawAnyLayout(kind, seed);
      if (!IterationsToFill(engine, kRestartCutoff, kPatience)) continue;
      seconds += SecondsOf([&] {
        const auto needed = IterationsToFill(engine, limit, INT64_MAX);
        iterations.push_back(static_cast<double>(needed.value()));
      });
    }
    const Distribution all(std::move(iterations));
    std::printf("%8ld %10.0f %10.0f %10.0f %12.0f %10.3f\n", static_cast<long>(limit), all.Median(),
                all.Mean(), all.Quantile(0.999), all.Max(), 1e3 * seconds / layouts);
    std::fflush(stdout);
  }
}

struct Needs {
  std::vector<double> iterations;  // infinite where no filling was found within kPatience
  int provenEmpty = 0;             // of those: there is none
  int unknown = 0;                 // the proof was given up
};

Needs MeasureNeeds(LayoutKind kind, int layouts) {
  Engine engine;
  Needs needs;
  for (int seed = 0; seed < layouts; ++seed) {
    engine.SawAnyLayout(kind, static_cast<std::uint64_t>(seed));
    auto found = IterationsToFill(engine, kRestartCutoff, kRestartBudget);
    const auto filling = found ? std::optional(true) : HasFilling(engine);
    if (filling == false) ++needs.provenEmpty;
    if (filling != false && !found) found = IterationsToFill(engine, kRestartCutoff, kPatience);
    if (!filling && !found) ++needs.unknown;
    needs.iterations.push_back(found ? static_cast<double>(*found) : INFINITY);
  }
  return needs;
}

// What a bound costs: layouts that could be filled and are given up, and iterations a layout.
void PrintBounds(LayoutKind kind, int layouts) {
  const Needs needs = MeasureNeeds(kind, layouts);
  std::printf("\nSolvability of %d %s layouts, tries of %ld: none in %d, unknown in %d\n", layouts,
              NameOf(kind), static_cast<long>(kRestartCutoff), needs.provenEmpty, needs.unknown);
  std::printf("%10s %10s %20s %18s\n", "bound", "given up", "not proven empty", "mean iterations");
  for (const double bound : {20e3, 50e3, 100e3, 200e3, 300e3, 400e3, 700e3, 1e6}) {
    double givenUp = 0;
    double sum = 0;
    for (const double needed : needs.iterations) {
      givenUp += needed > bound ? 1 : 0;
      sum += std::min(needed, bound);
    }
    std::printf("%10.0f %10.0f %20.0f %18.0f\n", bound, givenUp, givenUp - needs.provenEmpty,
                sum / layouts);
  }
  std::fflush(stdout);
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  const int few = argc > 1 ? std::atoi(argv[1]) : 1500;
  const int many = argc > 2 ? std::atoi(argv[2]) : 20'000;
  for (const LayoutKind kind : {LayoutKind::kRandom, LayoutKind::kRotational}) {
    PrintTryOutLimits(kind, few);
    PrintBounds(kind, many);
  }
}
