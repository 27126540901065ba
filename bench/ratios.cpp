// The program against the literal oracle: both take turns in one run, and their results and
// iteration counts are compared before anything is timed.
//   ratios [TURNS] [--benchmark_filter=...]
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <map>

#include "bench/distribution.h"
#include "bench/works.h"

namespace tessel::bench {
namespace {

constexpr double kSecondsATurn = 0.1;

const std::string kProduct = "/program";
const std::string kLiteral = "/oracle";

// Keeps the seconds for one item, by benchmark and turn.
class TimeKeeper final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      times_[run.run_name.function_name].push_back(1 / run.counters.at("items_per_second"));
    }
  }
  bool Has(const std::string& name) const { return times_.contains(name); }
  const std::vector<double>& Of(const std::string& name) const { return times_.at(name); }

 private:
  std::map<std::string, std::vector<double>> times_;
};

void Register(const std::string& name, std::int64_t items, const std::function<Outcome()>& batch) {
  benchmark::RegisterBenchmark(name.c_str(), [items, batch](benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
      const Outcome outcome = batch();
      benchmark::DoNotOptimize(outcome.results.data());
    }
    state.SetItemsProcessed(state.iterations() * items);
  })->MinTime(kSecondsATurn);
}

void PrintRow(const Work& work, const TimeKeeper& times) {
  const std::vector<double>& product = times.Of(work.name + kProduct);
  const std::vector<double>& literal = times.Of(work.name + kLiteral);
  std::vector<double> turns;
  for (std::size_t i = 0; i < product.size(); ++i) turns.push_back(literal[i] / product[i]);
  const Distribution ratio(std::move(turns));
  std::printf("%-30s %7.1f %7.1f ..%6.1f %9.0f %12.3f %12.3f\n", work.name.c_str(), ratio.Median(),
              ratio.Min(), ratio.Max(), work.ratioToReach, 1e6 * Distribution(product).Median(),
              1e6 * Distribution(literal).Median());
}

void PrintRatios(const std::vector<Work>& works, int turns) {
  for (const Work& work : works) {
    Register(work.name + kLiteral, work.items, work.literal);
    Register(work.name + kProduct, work.items, work.product);
  }
  TimeKeeper times;
  for (int turn = 0; turn < turns; ++turn) benchmark::RunSpecifiedBenchmarks(&times);
  std::printf("\nRatio to the literal oracle, %d turns each, processor time\n", turns);
  std::printf("%-30s %7s %16s %9s %12s %12s\n", "", "median", "least .. most", "to reach",
              "program us", "oracle us");
  for (const Work& work : works) {
    const bool timed = times.Has(work.name + kProduct) && times.Has(work.name + kLiteral);
    if (timed) PrintRow(work, times);
  }
}

bool Agree(const std::vector<Work>& works) {
  bool agree = true;
  for (const Work& work : works) {
    const Outcome product = work.product();
    if (product == work.literal()) continue;
    std::printf("%s: program and oracle DIFFER\n", work.name.c_str());
    agree = false;
  }
  if (agree) std::printf("Results, iterations and pumps of all works are the oracle's.\n");
  return agree;
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  using namespace tessel::bench;
  benchmark::Initialize(&argc, argv);
  const auto works = AllWorks();
  if (!Agree(works)) return EXIT_FAILURE;
  PrintRatios(works, argc > 1 ? std::atoi(argv[1]) : 9);
}
