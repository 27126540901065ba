#include "shell/puzzle_export.h"

#include <algorithm>

#include "paper/pdf_date.h"
#include "paper/picture_file.h"

namespace tessel {

namespace {

constexpr double kPictureSide = 90 * paper::kPointsPerMillimetre;
constexpr double kPicturePixelsPerInch = 300;
constexpr double kPageMargin = 15 * paper::kPointsPerMillimetre;

std::string_view SuffixOf(std::string_view format) {
  constexpr std::array named{"sds", "ksudoku", "csv", "jsonl", "sdm"};
  return std::ranges::find(named, format) == named.end() ? "txt" : format;
}

std::vector<ExportKind> MakeKinds() {
  std::vector<ExportKind> kinds{{"pdf", "pages to print, with solutions", "pdf"},
                                {"svg", "a picture of lines", "svg", true},
                                {"png", "a picture of pixels", "png", true}};
  for (const formats::Format& format : formats::AllFormats()) {
    kinds.push_back({format.name, format.summary, SuffixOf(format.name), format.onePuzzleAFile});
  }
  return kinds;
}

Export WritePdf(std::span<const Puzzle> puzzles, const paper::Sink& sink) {
  const auto options = BookletFor(puzzles.size(), paper::kA4);
  if (!options) return tl::unexpected(options.error());
  return paper::WriteBooklet(BookletPuzzles(puzzles), *options, sink).map([](int) {});
}

Export WriteText(std::span<const Puzzle> puzzles, const formats::Format& format,
                 const paper::Sink& sink) {
  const auto write = [&](std::string_view text) {
    return sink({reinterpret_cast<const unsigned char*>(text.data()), text.size()});
  };
  const auto refused = tl::unexpected<std::string>("the output cannot be written");
  if (!write(format.header)) return refused;
  for (std::size_t k = 0; k < puzzles.size(); ++k) {
    const formats::Writing record = format.write({.puzzle = puzzles[k], .index = k});
    if (!record) return tl::unexpected(record.error());
    if (!write(*record)) return refused;
  }
  return {};
}

}  // namespace

const std::vector<ExportKind>& ExportKinds() {
  static const std::vector<ExportKind> kinds = MakeKinds();
  return kinds;
}

Export ExportPuzzles(std::span<const Puzzle> puzzles, const ExportKind& kind,
                     const paper::Sink& sink) {
  if (kind.name == "pdf") return WritePdf(puzzles, sink);
  const formats::Format* const format = formats::FormatNamed(kind.name);
  if (format != nullptr) return WriteText(puzzles, *format, sink);
  const paper::BoardPicture picture = paper::PictureOfGivens(puzzles.front());
  const paper::BoardStyle style{.side = kPictureSide};
  return kind.name == "svg" ? paper::WriteSvg(picture, style, sink)
                            : paper::WritePng(picture, style, kPicturePixelsPerInch, sink);
}

tl::expected<paper::BookletOptions, std::string> BookletFor(std::size_t puzzles, paper::Size page) {
  const auto date = paper::DateOfDocument();
  if (!date) return tl::unexpected(date.error());
  paper::BookletOptions options;
  options.page = page;
  options.margins = {kPageMargin, kPageMargin, kPageMargin, kPageMargin};
  options.perPage = puzzles <= 2 ? static_cast<int>(puzzles) : 4;
  options.date = *date;
  return options;
}

std::vector<paper::BookletPuzzle> BookletPuzzles(std::span<const Puzzle> puzzles) {
  std::vector<paper::BookletPuzzle> all;
  for (const Puzzle& puzzle : puzzles) all.push_back({.puzzle = puzzle});
  return all;
}

formats::Writing LineOf(const Puzzle& puzzle, std::string_view format) {
  formats::Writing line = formats::FormatNamed(format)->write({.puzzle = puzzle});
  while (line && line->ends_with('\n')) line->pop_back();
  return line;
}

}  // namespace tessel
