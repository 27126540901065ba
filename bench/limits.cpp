// What a try-out may take and when to give a layout up, by measurement: see search/try_out.h.
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

constexpr std::int64_t kPatience = 10 * kSolvabilityBound;
constexpr long kProofNodes = 100'000'000;

class Limit final : public SearchDriver {
 public:
  explicit Limit(std::int64_t iterations) : left_(iterations) {}
  bool Proceed() override { return --left_ >= 0; }
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
  while (engine.search.Iterations() - start < allowed) {
    engine.search.StartEmpty(oracle::DrawOrder(random));
    Limit driver(limit);
    if (engine.search.Run(driver) == SearchEnd::kSolved) return engine.search.Iterations() - start;
  }
  return std::nullopt;
}

// Nothing when the proof was given up.
std::optional<bool> HasFilling(const Engine& engine) {
  return oracle::IndependentSolver(oracle::LayoutOf(engine.state.CageOfCell))
      .HasFilling(kProofNodes);
}

const char* NameOf(LayoutKind kind) {
  return kind == LayoutKind::kRandom ? "random" : "rotational";
}

void PrintTryOutLimits(LayoutKind kind, int layouts) {
  std::printf("\nIterations until one try ends in a filling, %d %s layouts that have one\n",
              layouts, NameOf(kind));
  std::printf("%8s %10s %10s %10s %12s %10s\n", "limit", "median", "mean", "99.9 %", "max",
              "mean ms");
  for (const std::int64_t limit : {125, 250, 500, 1000, 2000, 20000}) {
    Engine engine;
    std::vector<double> iterations;
    double seconds = 0;
    for (std::uint64_t seed = 0; std::ssize(iterations) < layouts; ++seed) {
      engine.SawAnyLayout(kind, seed);
      // Layouts without a filling are told by a limit and a patience of their own.
      if (!IterationsToFill(engine, 500, kPatience / 5)) continue;
      seconds += SecondsOf([&] {
        iterations.push_back(
            static_cast<double>(IterationsToFill(engine, limit, INT64_MAX).value()));
      });
    }
    const Distribution all(std::move(iterations));
    std::printf("%8ld %10.0f %10.0f %10.0f %12.0f %10.3f\n", static_cast<long>(limit), all.Median(),
                all.Mean(), all.Quantile(0.999), all.Max(), 1e3 * seconds / layouts);
  }
}

void PrintBounds(LayoutKind kind, int layouts) {
  Engine engine;
  std::vector<double> needed;  // infinite where no filling was found
  int lateFillings = 0;
  int unknown = 0;
  int none = 0;
  const double seconds = SecondsOf([&] {
    for (int seed = 0; seed < layouts; ++seed) {
      engine.SawAnyLayout(kind, static_cast<std::uint64_t>(seed));
      const auto found = IterationsToFill(engine, kTryOutLimit, kSolvabilityBound);
      needed.push_back(found ? static_cast<double>(*found) : INFINITY);
      if (found) continue;
      const auto filling = HasFilling(engine);
      if (!filling) ++unknown;
      if (filling == true) ++lateFillings;
      if (filling == false) ++none;
      if (filling != false) {
        const auto later = IterationsToFill(engine, kTryOutLimit, kPatience);
        std::printf("  seed %d: filling %s, found after %ld iterations\n", seed,
                    filling ? "proven" : "unknown", later ? static_cast<long>(*later) : -1L);
      }
    }
  });
  const Distribution all(needed);
  std::printf(
      "\nIterations to fill %d %s layouts (tries of %ld): median %.0f, 99 %% %.0f, %.0f s\n",
      layouts, NameOf(kind), static_cast<long>(kTryOutLimit), all.Median(), all.Quantile(0.99),
      seconds);
  std::printf("No filling within %ld: none %d, a filling all the same %d, unknown %d\n",
              static_cast<long>(kSolvabilityBound), none, lateFillings, unknown);
  std::printf("%10s %10s %12s %22s\n", "bound", "given up", "of them fill", "mean iterations");
  for (const double bound : {20e3, 50e3, 100e3, 200e3, 300e3, 400e3, 500e3, 700e3, 1e6}) {
    const auto givenUp =
        std::count_if(needed.begin(), needed.end(), [&](double n) { return n > bound; });
    double sum = 0;
    for (const double n : needed) sum += std::min(n, bound);
    std::printf("%10.0f %10ld %12ld %22.0f\n", bound, static_cast<long>(givenUp),
                static_cast<long>(givenUp) - none, sum / layouts);
  }
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  const int few = argc > 1 ? std::atoi(argv[1]) : 1500;
  const int many = argc > 2 ? std::atoi(argv[2]) : 20'000;
  for (const LayoutKind kind : {LayoutKind::kRandom, LayoutKind::kRotational}) {
    if (few > 0) PrintTryOutLimits(kind, few);
    std::fflush(stdout);
    if (many > 0) PrintBounds(kind, many);
    std::fflush(stdout);
  }
}
