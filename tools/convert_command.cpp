// tessel convert: puzzles from any format to any other.
#include <iostream>
#include <memory>

#include "formats/columns.h"
#include "tools/output.h"
#include "tools/puzzle_input.h"
#include "tools/record_format.h"
#include "tools/stop_signals.h"
#include "tools/subcommand.h"

namespace tessel::tools {

namespace {

using formats::DescribedPuzzle;
using formats::Detail;
using formats::Details;
using formats::Format;

struct Options {
  PuzzleInput input;
  std::string to;
  std::string output = "-";
  bool force = false;
  std::string columns;
};

constexpr std::array<std::pair<Detail, const char*>, 6> kDetailNames{
    {{Detail::kSolution, "solutions"},
     {Detail::kTitle, "titles"},
     {Detail::kAuthor, "authors"},
     {Detail::kPlaced, "digits placed by a player"},
     {Detail::kPencilMarks, "pencil marks"},
     {Detail::kRating, "grades"}}};

std::string Listed(Details details) {
  std::string list;
  for (const auto& [detail, name] : kDetailNames) {
    if (!details.Has(detail)) continue;
    list += (list.empty() ? "" : ", ") + std::string(name);
  }
  return list;
}

class Conversion {
 public:
  explicit Conversion(const Options& options)
      : options_(options),
        format_(options.to, options.columns),
        output_(options.output,
                options.force ? Output::Existing::kReplaced : Output::Existing::kRefused) {}

  int Run() {
    output_.Write(format_.Header());
    const bool allRead = ForEachPuzzle(
        options_.input,
        [&](DescribedPuzzle puzzle, const std::string& place) { Convert(puzzle, place); });
    output_.Finish();
    if (!lost_.Empty()) {
      std::cerr << "left out, because " << format_.Base().name
                << " cannot hold them: " << Listed(lost_) << "\n";
    }
    return allRead && allWritten_ ? kDone : kFailed;
  }

 private:
  void Convert(const DescribedPuzzle& puzzle, const std::string& place) {
    const formats::Writing writing = Written(puzzle);
    if (writing) {
      output_.Write(*writing);
      lost_ = lost_ | (formats::DetailsOf(puzzle) - format_.Base().carries);
      ++written_;
    } else {
      std::cerr << place << ": cannot be written in " << format_.Base().name << ": "
                << writing.error() << "\n";
      allWritten_ = false;
    }
  }

  formats::Writing Written(const DescribedPuzzle& puzzle) const {
    if (format_.Base().onePuzzleAFile && written_ == 1) {
      return tl::unexpected<std::string>("a file holds one puzzle, and has one already");
    }
    return format_.Write(puzzle);
  }

  const Options& options_;
  RecordFormat format_;
  Output output_;
  Details lost_;
  std::uint64_t written_ = 0;
  bool allWritten_ = true;
};

std::vector<std::string> FormatNames() {
  std::vector<std::string> names;
  for (const Format& format : formats::AllFormats()) names.emplace_back(format.name);
  return names;
}

}  // namespace

Work DeclareConvert(CLI::App& app) {
  const auto options = std::make_shared<Options>();
  options->input.Declare(app);
  app.add_option("--to", options->to, "The format to write")
      ->required()
      ->check(CLI::IsMember(FormatNames()))
      ->type_name("FORMAT");
  app.add_option("-o,--output", options->output, "Write there instead of to standard output")
      ->type_name("FILE");
  app.add_flag("--force", options->force, "Replace an output file that exists");
  app.add_option("--columns", options->columns,
                 "The columns of csv and jsonl, parted by commas: " + formats::ColumnNames())
      ->type_name("NAMES");
  return [options] {
    HeedStopSignals();
    return Conversion(*options).Run();
  };
}

}  // namespace tessel::tools
