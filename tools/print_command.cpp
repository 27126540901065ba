// tessel print: puzzles on paper.
#include <filesystem>
#include <iostream>
#include <memory>

#include "grade/grader.h"
#include "paper/picture_file.h"
#include "solver/fillable.h"
#include "tools/document.h"
#include "tools/failure.h"
#include "tools/print_options.h"
#include "tools/stop_signals.h"
#include "tools/subcommand.h"

namespace tessel::tools {

namespace {

using paper::BookletPuzzle;

paper::PrintedGrade GradeNamed(grade::Level level) {
  return {static_cast<int>(level), std::string(grade::NameOf(level))};
}

// Finds out what the file does not tell of a puzzle, as far as it is to be printed.
class Completion {
 public:
  Completion(bool solutions, bool grades) : solutions_(solutions), grades_(grades) {}

  BookletPuzzle Completed(formats::DescribedPuzzle described, const std::string& place) {
    BookletPuzzle puzzle{.puzzle = std::move(described.puzzle)};
    if (solutions_ && !puzzle.puzzle.solution) Solve(puzzle.puzzle, place);
    if (grades_) puzzle.grade = GradeOf(puzzle.puzzle, described.rating);
    return puzzle;
  }

 private:
  void Solve(Puzzle& puzzle, const std::string& place) {
    const auto found = solver::DecideCompletions(solver_, puzzle.layout, puzzle.givens);
    if (found.size() == 1) {
      puzzle.solution = found.front();
      return;
    }
    std::cerr << place << ": printed without a solution, as there "
              << (found.empty() ? "is none" : "are several") << "\n";
  }

  std::optional<paper::PrintedGrade> GradeOf(const Puzzle& puzzle,
                                             const std::optional<formats::Rating>& rating) {
    if (rating && rating->level >= 1 && rating->level <= grade::kLevelCount) {
      return GradeNamed(static_cast<grade::Level>(rating->level));
    }
    const auto grade = grader_.GradeOf(puzzle);
    if (!grade) return std::nullopt;
    return GradeNamed(grade->level);
  }

  bool solutions_;
  bool grades_;
  solver::Solver solver_{Layout::Regular()};
  grade::Grader grader_;
};

Output::Existing ExistingFiles(const PrintOptions& options) {
  return options.force ? Output::Existing::kReplaced : Output::Existing::kRefused;
}

void TellMissingCharacters(const std::string& what, const std::string& text) {
  if (paper::CanBeSet(text)) return;
  std::cerr << "the font has not every character of the " << what << "\n";
}

void PrintBooklet(const PrintOptions& options, const std::vector<BookletPuzzle>& puzzles) {
  const paper::BookletOptions booklet = options.Booklet();
  TellMissingCharacters("title", booklet.title);
  TellMissingCharacters("author", booklet.author);
  WriteDocument(options.output, ExistingFiles(options), [&](const paper::Sink& sink) {
    return paper::WriteBooklet(puzzles, booklet, sink).map([](int) {});
  });
}

// "board.svg" for the only puzzle, else "board-7.svg".
std::string PicturePath(const PrintOptions& options, std::size_t puzzles, std::size_t k) {
  const std::filesystem::path path = options.output;
  if (puzzles == 1) return path.string();
  const std::size_t number = static_cast<std::size_t>(options.numberFrom) + k;
  const std::string name =
      path.stem().string() + "-" + std::to_string(number) + path.extension().string();
  return (path.parent_path() / name).string();
}

paper::BoardPicture PictureOf(const Puzzle& puzzle, bool marks) {
  paper::BoardPicture picture = paper::PictureOfGivens(puzzle);
  if (marks) picture.marks = paper::PencilMarksOf(picture.layout, picture.digits);
  return picture;
}

void PrintPictures(const PrintOptions& options, const std::vector<BookletPuzzle>& puzzles,
                   bool svg) {
  const paper::BoardStyle style = options.Picture();
  for (std::size_t k = 0; k < puzzles.size() && StopSignal() == 0; ++k) {
    const paper::BoardPicture picture = PictureOf(puzzles[k].puzzle, options.marks);
    const std::string path = PicturePath(options, puzzles.size(), k);
    WriteDocument(path, ExistingFiles(options), [&](const paper::Sink& sink) {
      return svg ? paper::WriteSvg(picture, style, sink)
                 : paper::WritePng(picture, style, options.pixelsPerInch, sink);
    });
  }
}

enum class Kind { kBooklet, kSvg, kPng };

Kind KindOf(const PrintOptions& options) {
  const std::string extension = std::filesystem::path(options.output).extension().string();
  if (options.output == "-" || extension == ".pdf") return Kind::kBooklet;
  if (extension == ".svg") return Kind::kSvg;
  if (extension == ".png") return Kind::kPng;
  throw WrongOptions("the output must end in .pdf, .svg or .png: " + options.output);
}

int Print(const PrintOptions& options) {
  const Kind kind = KindOf(options);
  if (kind == Kind::kBooklet) options.Booklet();  // wrong sizes are told before anything is read
  Completion completion(kind == Kind::kBooklet && options.solutions != "none",
                        kind == Kind::kBooklet && (options.sections || options.Shows("grade")));
  std::vector<BookletPuzzle> puzzles;
  const bool allRead = ForEachPuzzle(
      options.input, [&](formats::DescribedPuzzle described, const std::string& place) {
        puzzles.push_back(completion.Completed(std::move(described), place));
      });
  if (puzzles.empty()) throw Failure("there is no puzzle to print");
  if (kind == Kind::kBooklet) {
    PrintBooklet(options, puzzles);
  } else {
    PrintPictures(options, puzzles, kind == Kind::kSvg);
  }
  return allRead ? kDone : kFailed;
}

}  // namespace

Work DeclarePrint(CLI::App& app) {
  const auto options = std::make_shared<PrintOptions>();
  options->Declare(app);
  return [options] {
    HeedStopSignals();
    return Print(*options);
  };
}

}  // namespace tessel::tools
