#include "bench/works.h"

#include <memory>

#include "bench/engine.h"
#include "tests/oracle/search/literal_conceal.h"
#include "tests/oracle/search/program_layout.h"
#include "tests/oracle/search/samples.h"

namespace tessel::bench {

namespace {

using OracleGrid = oracle::Grid;
using OracleLayout = oracle::Layout;
using oracle::LiteralConceal;
using oracle::LiteralLayout;
using oracle::LiteralSearch;

constexpr int kLayouts = 200;
constexpr int kSolutions = 60;
constexpr int kOrders = 5;                   // for each layout
constexpr std::int64_t kSearchPumps = 2000;  // after which a search of one order is stopped
constexpr std::array kAllKinds{LayoutKind::kRandom, LayoutKind::kRotational, LayoutKind::kRegular};

const char* NameOf(LayoutKind kind) {
  switch (kind) {
    case LayoutKind::kRandom:
      return "random";
    case LayoutKind::kRotational:
      return "rotational";
    case LayoutKind::kRegular:
      return "regular";
  }
  return "";
}

template <typename Board>
void Append(std::vector<std::int16_t>& results, const Board& board) {
  results.insert(results.end(), board.begin(), board.begin() + kCellCount);
}

// A layout with a solution of it.
struct Sample {
  std::uint64_t seed;
  OracleLayout layout;
  OracleGrid solution;
};
using Samples = std::shared_ptr<const std::vector<Sample>>;

LiteralLayout::Mode ModeOf(LayoutKind kind) {
  return kind == LayoutKind::kRotational ? LiteralLayout::Mode::kRotational
                                         : LiteralLayout::Mode::kRandom;
}

OracleLayout LayoutOf(LayoutKind kind, std::uint64_t seed) {
  return kind == LayoutKind::kRegular ? oracle::RegularLayout()
                                      : oracle::SampleLayout(seed, ModeOf(kind));
}

Samples DrawSamples(LayoutKind kind) {
  std::vector<Sample> samples;
  for (std::uint64_t seed = 0; std::ssize(samples) < kSolutions; ++seed) {
    const OracleLayout layout = LayoutOf(kind, seed);
    if (const auto solution = oracle::SampleSolution(layout, seed)) {
      samples.push_back({seed, layout, *solution});
    }
  }
  return std::make_shared<const std::vector<Sample>>(std::move(samples));
}

// Generator alone: every complete layout is kept.
Work LayoutWork(LayoutKind kind) {
  const auto product = [kind] {
    Engine engine;
    Outcome outcome;
    for (std::uint64_t seed = 0; seed < kLayouts; ++seed) {
      engine.SawAnyLayout(kind, seed);
      Append(outcome.results, engine.layout.Cages());
    }
    outcome.pumps = engine.progress.steps;
    return outcome;
  };
  const auto literal = [kind] {
    SeededRandom random;
    LiteralLayout saw(random);
    Outcome outcome;
    for (std::uint64_t seed = 0; seed < kLayouts; ++seed) {
      random.Seed(seed);
      Append(outcome.results, saw.BuildTesselPattern(ModeOf(kind)).cageOfCell);
    }
    outcome.pumps = saw.steps;
    return outcome;
  };
  return {std::string("one layout, ") + NameOf(kind), 15, kLayouts, product, literal};
}

struct Search {
  OracleLayout layout;
  OracleGrid order;
};

class StoppedSearch final : public SearchDriver {
 public:
  explicit StoppedSearch(Progress& progress) : progress_(progress) {}
  bool BeforeIteration() override {
    progress_.Step();
    return ++pumps_ < kSearchPumps;
  }
  bool ContinueAfterSolution() override { return false; }

 private:
  Progress& progress_;
  std::int64_t pumps_ = 0;
};

Outcome SearchByProduct(const std::vector<Search>& searches) {
  Engine engine;
  Outcome outcome;
  for (const Search& search : searches) {
    engine.Use(oracle::ProgramLayout(search.layout));
    engine.search.StartEmpty(search.order);
    StoppedSearch driver(engine.progress);
    const SearchResult end = engine.search.Run(driver);
    if (end == SearchResult::kSolved) Append(outcome.results, engine.search.Top().Digit);
  }
  outcome.iterations = engine.search.Iterations();
  outcome.pumps = engine.progress.steps;
  return outcome;
}

Outcome SearchByOracle(const std::vector<Search>& searches) {
  Outcome outcome;
  for (const Search& search : searches) {
    LiteralSearch literal(search.layout);
    literal.onPump = [&] { literal.StopRequested = literal.pumps == kSearchPumps; };
    if (literal.GenerateTessel(search.order) == LiteralSearch::End::kSolved) {
      Append(outcome.results, literal.Levels[literal.Depth].Digit);
    }
    outcome.iterations += literal.iterations;
    outcome.pumps += literal.pumps;
  }
  return outcome;
}

Work SearchWork(const std::vector<Samples>& irregular) {
  auto searches = std::make_shared<std::vector<Search>>();
  SeededRandom random;
  for (const Samples& samples : irregular) {
    for (const Sample& sample : *samples) {
      for (int i = 0; i < kOrders; ++i) {
        searches->push_back({sample.layout, oracle::DrawOrder(random)});
      }
    }
  }
  return {"search iteration, irregular", 5, SearchByProduct(*searches).iterations,
          [searches] { return SearchByProduct(*searches); },
          [searches] { return SearchByOracle(*searches); }};
}

Outcome ConcealByProduct(const std::vector<Sample>& samples, ConcealMode kind) {
  Engine engine;
  Outcome outcome;
  for (const Sample& sample : samples) {
    engine.Use(oracle::ProgramLayout(sample.layout));
    engine.solution = GridOf(sample.solution);
    engine.ConcealSolution(kind, sample.seed);
    Append(outcome.results, engine.givens);
  }
  outcome.iterations = engine.search.Iterations();
  outcome.pumps = engine.progress.steps;
  return outcome;
}

using OnCall = std::function<void(const Sample&, const OracleGrid& givens)>;

Outcome ConcealByOracle(const std::vector<Sample>& samples, ConcealMode kind,
                        const OnCall& onCall = {}) {
  const auto mode =
      kind == ConcealMode::kPairs ? LiteralConceal::Mode::kPairs : LiteralConceal::Mode::kSingle;
  Outcome outcome;
  for (const Sample& sample : samples) {
    SeededRandom random(sample.seed);
    LiteralConceal conceal(sample.layout, random);
    if (onCall)
      conceal.onCall = [&](int, const OracleGrid& givens, bool) { onCall(sample, givens); };
    Append(outcome.results, conceal.ConcealCells2ValidTessel(sample.solution, mode).value());
    outcome.iterations += conceal.search.iterations;
    outcome.pumps += conceal.search.pumps;
  }
  return outcome;
}

Work ConcealWork(LayoutKind layout, ConcealMode kind, const Samples& samples) {
  const char* cells = kind == ConcealMode::kPairs ? "pairs" : "single";
  return {std::string("Conceal, ") + cells + ", " + NameOf(layout), 5, kSolutions,
          [samples, kind] { return ConcealByProduct(*samples, kind); },
          [samples, kind] { return ConcealByOracle(*samples, kind); }};
}

// The uniqueness questions that concealing has put.
struct Questions {
  OracleLayout layout;
  std::vector<OracleGrid> givens;
};

Outcome AskProduct(const std::vector<Questions>& questions) {
  Engine engine;
  Outcome outcome;
  for (const Questions& asked : questions) {
    engine.Use(oracle::ProgramLayout(asked.layout));
    for (const OracleGrid& givens : asked.givens) {
      outcome.results.push_back(engine.search.UniqueSolution(givens, engine.progress));
    }
  }
  outcome.iterations = engine.search.Iterations();
  outcome.pumps = engine.progress.steps;
  return outcome;
}

Outcome AskOracle(const std::vector<Questions>& questions) {
  Outcome outcome;
  for (const Questions& asked : questions) {
    LiteralSearch search(asked.layout);
    for (const OracleGrid& givens : asked.givens) {
      outcome.results.push_back(search.UniqueSolution(givens).value());
    }
    outcome.iterations += search.iterations;
    outcome.pumps += search.pumps;
  }
  return outcome;
}

Work UniquenessWork(LayoutKind layout, const Samples& samples) {
  auto questions = std::make_shared<std::vector<Questions>>();
  std::int64_t calls = 0;
  for (const ConcealMode kind : {ConcealMode::kSingle, ConcealMode::kPairs}) {
    const Sample* last = nullptr;
    ConcealByOracle(*samples, kind, [&](const Sample& sample, const OracleGrid& givens) {
      if (&sample != last) questions->push_back({sample.layout, {}});
      last = &sample;
      questions->back().givens.push_back(givens);
      ++calls;
    });
  }
  return {std::string("UniqueSolution, ") + NameOf(layout), 5, calls,
          [questions] { return AskProduct(*questions); },
          [questions] { return AskOracle(*questions); }};
}

}  // namespace

std::vector<Work> AllWorks() {
  std::vector<Work> works;
  for (const LayoutKind kind : {LayoutKind::kRandom, LayoutKind::kRotational}) {
    works.push_back(LayoutWork(kind));
  }
  std::vector<Samples> samples;
  for (const LayoutKind kind : kAllKinds) samples.push_back(DrawSamples(kind));
  works.push_back(SearchWork({samples[0], samples[1]}));
  for (const ConcealMode cells : {ConcealMode::kSingle, ConcealMode::kPairs}) {
    for (std::size_t i = 0; i < kAllKinds.size(); ++i) {
      works.push_back(ConcealWork(kAllKinds[i], cells, samples[i]));
    }
  }
  for (std::size_t i = 0; i < kAllKinds.size(); ++i) {
    works.push_back(UniquenessWork(kAllKinds[i], samples[i]));
  }
  return works;
}

}  // namespace tessel::bench
