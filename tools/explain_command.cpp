// tessel explain: how puzzles are solved, step by step.
#include <filesystem>
#include <iostream>
#include <memory>

#include "explain/page.h"
#include "explain/page_parts.h"
#include "explain/story.h"
#include "explain/text.h"
#include "grade/candidate_grid.h"
#include "hints/mistakes.h"
#include "solver/fillable.h"
#include "tools/document.h"
#include "tools/failure.h"
#include "tools/puzzle_input.h"
#include "tools/stop_signals.h"
#include "tools/subcommand.h"

namespace tessel::tools {

namespace {

using explain::Explanation;
using formats::DescribedPuzzle;
using grade::CandidateGrid;

struct Options {
  PuzzleInput input;
  std::string output = "-";
  bool force = false;
  bool fromHere = false;
  std::string page = "A4";
};

// Why a puzzle is not explained; what remains of the input still is.
using Start = tl::expected<CandidateGrid, std::string>;

Grid WithPlaced(const DescribedPuzzle& described) {
  Grid digits = described.puzzle.givens;
  if (!described.placed) return digits;
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (digits[cell] == 0) digits[cell] = (*described.placed)[cell];
  }
  return digits;
}

// The candidates of an open cell are the player's where there are any, less those that the board
// excludes by now.
CandidateGrid PositionOf(const DescribedPuzzle& described) {
  CandidateGrid position = grade::StartOf(described.puzzle.layout, WithPlaced(described));
  if (!described.pencilMarks) return position;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const Mask kept = (*described.pencilMarks)[cell];
    if (kept == 0) continue;
    position.candidates[cell] = static_cast<Mask>(position.candidates[cell] & kept);
  }
  return position;
}

// From a mistake no step leads to the solution.
Start StartHere(const DescribedPuzzle& described, const Grid& solution) {
  CandidateGrid position = PositionOf(described);
  if (const auto cell = FindWrongDigit(position.digits, solution)) {
    return tl::unexpected(WrongDigitSentence(*cell, position.digits[*cell]));
  }
  const MarkedBoard board{described.puzzle.layout, position.digits, position.candidates};
  if (const auto cell = FindLostCandidate(board, solution)) {
    return tl::unexpected(LostCandidateSentence(*cell));
  }
  return position;
}

class Explaining {
 public:
  explicit Explaining(const Options& options) : options_(options) {}

  // Calls `visit` with each explanation and the puzzle's title. False when something was not read
  // or has no explanation.
  bool ForEach(const std::function<void(const Explanation&, const std::string&)>& visit) {
    bool allExplained = true;
    const bool allRead = ForEachPuzzle(
        options_.input, [&](const DescribedPuzzle& described, const std::string& place) {
          const Start start = StartOf(described);
          if (start) {
            visit(explain::Explain(described.puzzle, *start), TitleOf(described));
            return;
          }
          std::cerr << place << ": not explained: " << start.error() << "\n";
          allExplained = false;
        });
    return allRead && allExplained;
  }

 private:
  static std::string TitleOf(const DescribedPuzzle& described) {
    if (!described.title.empty()) return described.title;
    return "Puzzle " + std::to_string(described.index + 1);
  }

  Start StartOf(const DescribedPuzzle& described) {
    const Puzzle& puzzle = described.puzzle;
    const auto solutions = solver::DecideCompletions(solver_, puzzle.layout, puzzle.givens);
    if (solutions.empty()) return tl::unexpected(std::string("it has no solution"));
    if (solutions.size() > 1) return tl::unexpected(std::string("it has several solutions"));
    if (options_.fromHere) return StartHere(described, solutions.front());
    return grade::StartOf(puzzle.layout, puzzle.givens);
  }

  const Options& options_;
  solver::Solver solver_{Layout::Regular()};
};

Output::Existing ExistingFile(const Options& options) {
  return options.force ? Output::Existing::kReplaced : Output::Existing::kRefused;
}

int WriteText(const Options& options) {
  Output output(options.output, ExistingFile(options));
  const bool all =
      Explaining(options).ForEach([&](const Explanation& explanation, const std::string& title) {
        output.Write(explain::TextOf(explanation, title));
      });
  output.Finish();
  return all ? kDone : kFailed;
}

struct Stories {
  std::vector<paper::Story> all;
  bool complete = true;
};

// Throws Failure when there is none.
Stories StoriesOf(const Options& options) {
  Stories stories;
  stories.complete =
      Explaining(options).ForEach([&](const Explanation& explanation, const std::string& title) {
        stories.all.push_back(explain::StoryOf(explanation, title));
      });
  if (stories.all.empty()) throw Failure("there is no puzzle to explain");
  return stories;
}

int WritePage(const Options& options) {
  const Stories stories = StoriesOf(options);
  const auto page = explain::PageOf(stories.all);
  if (!page) throw Failure("cannot draw: " + page.error());
  Output output(options.output, ExistingFile(options));
  output.Write(*page);
  output.Finish();
  return stories.complete ? kDone : kFailed;
}

int WritePdf(const Options& options) {
  const auto size = paper::ParsePageSize(options.page);
  if (!size) throw WrongOptions(size.error());
  const paper::StoryOptions pages{
      .page = *size, .legend = std::string(explain::kLegend), .date = DateOfDocument()};
  const Stories stories = StoriesOf(options);
  WriteDocument(options.output, ExistingFile(options), [&](const paper::Sink& sink) {
    return paper::WriteStories(stories.all, pages, sink).map([](int) {});
  });
  return stories.complete ? kDone : kFailed;
}

int ExplainAll(const Options& options) {
  const std::string extension = std::filesystem::path(options.output).extension().string();
  if (extension == ".html") return WritePage(options);
  if (extension == ".pdf") return WritePdf(options);
  if (extension == ".txt" || options.output == "-") return WriteText(options);
  throw WrongOptions("the output must end in .html, .pdf or .txt: " + options.output);
}

}  // namespace

Work DeclareExplain(CLI::App& app) {
  const auto options = std::make_shared<Options>();
  options->input.purpose = "explain";
  options->input.Declare(app);
  app.add_option("-o,--output", options->output,
                 "The .html, .pdf or .txt to write; text to standard output if not told")
      ->type_name("FILE");
  app.add_flag("--force", options->force, "Replace a file that exists");
  app.add_flag("--from-here", options->fromHere,
               "Go on from the player's digits and pencil marks, where the format carries them");
  app.add_option("--page", options->page, "A4, A5, Letter, Legal, or as 6x9in or 210x297mm")
      ->type_name("SIZE");
  return [options] {
    HeedStopSignals();
    return ExplainAll(*options);
  };
}

}  // namespace tessel::tools
