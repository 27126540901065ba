// tessel grade: how hard puzzles are, a line each.
#include <algorithm>
#include <iostream>
#include <memory>
#include <thread>
#include <vector>

#include "grade/grader.h"
#include "tools/failure.h"
#include "tools/grade_chart.h"
#include "tools/grade_lines.h"
#include "tools/output.h"
#include "tools/puzzle_input.h"
#include "tools/stop_signals.h"
#include "tools/subcommand.h"

namespace tessel::tools {

namespace {

struct Options {
  PuzzleInput input;
  std::string format = "text";
  bool summary = false;
  std::string plot;
  unsigned jobs = std::max(1U, std::thread::hardware_concurrency());
};

const GradeFormat& FormatNamed(const std::string& name) {
  return *std::ranges::find_if(kGradeFormats,
                               [&](const auto& format) { return format.name == name; });
}

struct Ungraded {
  formats::DescribedPuzzle puzzle;
  std::string place;
};

using Outcome = tl::expected<grade::Grade, grade::GradeFault>;

// Grades many puzzles at once, each by the thread whose turn it is.
class Graders {
 public:
  explicit Graders(unsigned jobs) : graders_(jobs) {}

  // In the order of the puzzles, whatever the number of threads.
  std::vector<Outcome> GradeAll(const std::vector<Ungraded>& batch) {
    std::vector<Outcome> outcomes(batch.size());
    std::vector<std::jthread> threads;
    for (std::size_t job = 0; job < graders_.size(); ++job) {
      threads.emplace_back([&, job] {
        for (std::size_t i = job; i < batch.size(); i += graders_.size()) {
          outcomes[i] = graders_[job].GradeOf(batch[i].puzzle.puzzle);
        }
      });
    }
    threads.clear();
    return outcomes;
  }

 private:
  std::vector<grade::Grader> graders_;
};

class Grading {
 public:
  explicit Grading(const Options& options)
      : options_(options), format_(FormatNamed(options.format)), graders_(options.jobs) {}

  int Run() {
    output_.Write(format_.header());
    const bool allRead = ForEachPuzzle(
        options_.input, [&](formats::DescribedPuzzle puzzle, const std::string& place) {
          batch_.push_back({std::move(puzzle), place});
          if (batch_.size() == kBatchSize) GradeBatch();
        });
    GradeBatch();
    if (options_.summary) TellSummary();
    output_.Finish();
    if (!options_.plot.empty()) Plot();
    return allRead && allGraded_ ? kDone : kFailed;
  }

 private:
  // Enough work for threads to be worth starting, at about a kilobyte a puzzle.
  static constexpr std::size_t kBatchSize = 2048;

  void GradeBatch() {
    const std::vector<Outcome> outcomes = graders_.GradeAll(batch_);
    for (std::size_t i = 0; i < batch_.size(); ++i) Tell(batch_[i], outcomes[i]);
    batch_.clear();
  }

  void Tell(const Ungraded& puzzle, const Outcome& outcome) {
    if (outcome) {
      output_.Write(format_.line(puzzle.puzzle.index, *outcome));
      summary_.Add(*outcome);
    } else {
      std::cerr << puzzle.place << ": " << MessageOf(outcome.error()) << "\n";
      allGraded_ = false;
    }
  }

  // Beside a table the summary would be a line that no reader of tables understands.
  void TellSummary() {
    const std::string chart = ChartOf(summary_);
    if (options_.format == "text") {
      output_.Write("\n" + chart);
    } else {
      std::cerr << chart;
    }
  }

  void Plot() const {
    Output file(options_.plot, Output::Existing::kReplaced);
    file.Write(PlotOf(summary_));
    file.Finish();
  }

  const Options& options_;
  const GradeFormat& format_;
  Graders graders_;
  Output output_{"-"};
  std::vector<Ungraded> batch_;
  grade::GradeSummary summary_;
  bool allGraded_ = true;
};

std::vector<std::string> FormatNames() {
  std::vector<std::string> names;
  for (const GradeFormat& format : kGradeFormats) names.emplace_back(format.name);
  return names;
}

}  // namespace

Work DeclareGrade(CLI::App& app) {
  constexpr unsigned mostJobs = 1024;
  const auto options = std::make_shared<Options>();
  options->input.Declare(app);
  app.add_option("--format", options->format, "The format to write: text, csv or jsonl")
      ->check(CLI::IsMember(FormatNames()))
      ->type_name("FORMAT");
  app.add_flag("--summary", options->summary,
               "Tell at the end how many puzzles there are of each level; beside csv and jsonl, on "
               "standard error");
  app.add_option("--plot", options->plot, "Draw the levels and scores of all puzzles, as SVG")
      ->type_name("FILE");
  app.add_option("--jobs", options->jobs, "How many threads grade; usually one a processor")
      ->check(CLI::Range(1U, mostJobs))
      ->type_name("J");
  return [options] {
    HeedStopSignals();
    return Grading(*options).Run();
  };
}

}  // namespace tessel::tools
