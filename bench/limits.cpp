// What a try-out may take, by measurement: see search/random_restarts.h.
//   limits [LAYOUTS]
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "bench/cpu_time.h"
#include "bench/distribution.h"
#include "bench/engine.h"
#include "tests/oracle/search/samples.h"

namespace tessel::bench {
namespace {

constexpr std::int64_t kPatience = 4'000'000;

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

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  const int few = argc > 1 ? std::atoi(argv[1]) : 1500;
  for (const LayoutKind kind : {LayoutKind::kRandom, LayoutKind::kRotational}) {
    PrintTryOutLimits(kind, few);
  }
}
