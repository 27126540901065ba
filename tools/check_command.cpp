// tessel check: how many solutions puzzles have, and whether layouts can be filled.
#include <memory>

#include "formats/cell_text.h"
#include "formats/layout_line.h"
#include "solver/diagnosis.h"
#include "solver/fillable.h"
#include "solver/verdict.h"
#include "tools/failure.h"
#include "tools/output.h"
#include "tools/puzzle_input.h"
#include "tools/subcommand.h"

namespace tessel::tools {

namespace {

using formats::CellName;
using formats::DescribedPuzzle;
using formats::GridText;

struct Options {
  PuzzleInput input;
  bool layout = false;
  bool minimal = false;
  bool solve = false;
};

std::string Names(const std::vector<int>& cells) {
  std::string names;
  for (const int cell : cells) names += (names.empty() ? "" : ", ") + CellName(cell);
  return names;
}

class Checking {
 public:
  explicit Checking(const Options& options) : options_(options), output_("-") {}

  int Run() {
    const bool allRead = ForEachPuzzle(
        options_.input, [&](const DescribedPuzzle& described, const std::string& place) {
          output_.Write(options_.layout ? LayoutLine(described.puzzle.layout)
                                        : place + ": " + Verdict(described.puzzle));
        });
    output_.Finish();
    return allRead && allHold_ ? kDone : kFailed;
  }

 private:
  std::string LayoutLine(const Layout& layout) {
    const solver::Filling filling = solver::DecideFillable(layout);
    if (filling.answer == solver::Answer::kYes) return "yes " + GridText(filling.grid, '.') + "\n";
    allHold_ = false;
    return "no\n";
  }

  std::string Verdict(const Puzzle& puzzle) {
    const auto found = solver::DecideCompletions(solver_, puzzle.layout, puzzle.givens);
    std::string text = solver::VerdictOf(puzzle, found, CellName);
    if (found.size() == 1) return text + AboutOne(puzzle, found.front()) + "\n";
    allHold_ = false;
    for (const Grid& solution : found) text += "\n  " + GridText(solution, '.');
    return text + "\n";
  }

  std::string AboutOne(const Puzzle& puzzle, const Grid& solution) {
    std::string text;
    if (puzzle.solution && *puzzle.solution != solution) {
      text += ", which is not the one that stands there";
      allHold_ = false;
    }
    if (options_.minimal) text += AboutGivens(puzzle, solution);
    if (options_.solve) text += ": " + GridText(solution, '.');
    return text;
  }

  std::string AboutGivens(const Puzzle& puzzle, const Grid& solution) {
    const auto needless = solver::FindNeedlessGivens(solver_, puzzle.givens, solution);
    if (needless.empty()) return ", minimal";
    allHold_ = false;
    return ", not minimal (each alone could go: " + Names(needless) + ")";
  }

  const Options& options_;
  Output output_;
  solver::Solver solver_{Layout::Regular()};
  bool allHold_ = true;
};

void ReadLayouts(Options& options) {
  if (options.minimal || options.solve || !options.input.from.empty()) {
    throw WrongOptions("--layout goes with no other option");
  }
  options.input.only = &formats::kLayoutLine;
}

}  // namespace

Work DeclareCheck(CLI::App& app) {
  const auto options = std::make_shared<Options>();
  options->input.purpose = "check";
  options->input.Declare(app);
  app.add_flag("--layout", options->layout,
               "Read layouts, 81 characters a line, and tell whether each can be filled");
  app.add_flag("--minimal", options->minimal, "Tell which givens could go");
  app.add_flag("--solve", options->solve, "Tell the solution");
  return [options] {
    if (options->layout) ReadLayouts(*options);
    return Checking(*options).Run();
  };
}

}  // namespace tessel::tools
