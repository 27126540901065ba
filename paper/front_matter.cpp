#include "paper/front_matter.h"

#include <algorithm>
#include <array>

#include "paper/text.h"

namespace tessel::paper {

namespace {

constexpr std::string_view kDefaultTitle = "Irregular Sudoku";
constexpr double kLeading = 1.38;  // baseline to baseline, by the font size

// Draws centred lines and returns the baseline of the last.
double DrawCentredLines(const FrontMatter& in, const std::vector<std::string>& lines,
                        const TextStyle& style, Point first) {
  double baseline = first.y;
  for (const std::string& line : lines) {
    DrawText(in.context, in.fonts, line, style, {first.x, baseline}, Align::kCentre);
    baseline += 1.2 * style.size;
  }
  return baseline - 1.2 * style.size;
}

struct FittedTitle {
  TextStyle style;
  std::vector<std::string> lines;
};

// As large as the page allows; what does not fit at the least size is left out at the end.
FittedTitle FitTitle(const FrontMatter& in, std::string_view title, const Box& content) {
  const std::size_t mostLines[] = {3, 4, 6, 9};
  double size = content.width / 11;
  FittedTitle fitted;
  for (const std::size_t most : mostLines) {
    fitted.style = {Face::kBold, size};
    fitted.lines = Wrapped(in.fonts, title, fitted.style, content.width);
    if (fitted.lines.size() <= most) return fitted;
    size *= 0.75;
  }
  fitted.lines.resize(mostLines[3]);
  fitted.lines.back() += "\u2026";
  return fitted;
}

std::string CountOf(std::size_t puzzles) {
  return puzzles == 1 ? "One puzzle" : std::to_string(puzzles) + " puzzles";
}

// An emblem: the cages of the first puzzle, without its digits.
BoardPicture Emblem(const FrontMatter& in) {
  return {.layout = in.puzzles.front().puzzle.layout};
}

class RulesPage {
 public:
  RulesPage(const FrontMatter& in, const Box& content)
      : in_(in), content_(content), y_(content.y), size_(BodySize()) {}

  void Draw() {
    y_ += 2.0 * size_;
    DrawText(in_.context, in_.fonts, "How to play", {Face::kBold, 2.0 * size_}, {content_.x, y_});
    y_ += 1.3 * size_;
    Paragraph(
        "Fill the board with the digits 1 to 9, so that each of them stands once in every row, "
        "once in every column and once in every cage. A cage is an area of nine cells inside "
        "thick lines.");
    Houses();
    Paragraph(
        "The digits that are printed stay as they are. Look for a cell that only one digit "
        "fits, or for a digit that fits only one cell of a row, column or cage. Where neither "
        "is to be seen, note the candidates of each cell in small figures, and look for those "
        "that can be crossed out.");
    if (in_.firstSolutionPage == 0) return;
    Paragraph("The solutions begin on page " + std::to_string(in_.firstSolutionPage) + ".");
  }

 private:
  double BodySize() const {
    return std::clamp(content_.width / 42, 7.0, in_.options.large ? 16.0 : 12.0);
  }

  void Paragraph(std::string_view text) {
    const TextStyle style{Face::kRegular, size_};
    y_ += 0.6 * size_;
    for (const std::string& line : Wrapped(in_.fonts, text, style, content_.width)) {
      y_ += kLeading * size_;
      DrawText(in_.context, in_.fonts, line, style, {content_.x, y_});
    }
  }

  // A row, a column and a cage, each on a small board.
  void Houses() {
    const double gap = 0.05 * content_.width;
    const double side = (content_.width - 2 * gap) / 3;
    const std::array captions{"a row", "a column", "a cage"};
    y_ += 1.6 * size_;
    for (std::size_t k = 0; k < captions.size(); ++k) {
      const double x = content_.x + static_cast<double>(k) * (side + gap);
      BoardPicture picture = Emblem(in_);
      ForEachCell(kHouseKinds[k],
                  [&](CellSet cell) { picture.highlighted = picture.highlighted | cell; });
      DrawBoard(in_.context, in_.fonts, picture, {.side = side}, {x, y_});
      DrawText(in_.context, in_.fonts, captions[k], {Face::kItalic, size_, 0.25},
               {x + side / 2, y_ + side + 1.5 * size_}, Align::kCentre);
    }
    y_ += side + 2.4 * size_;
  }

  // The cells of the middle house of that kind.
  void ForEachCell(HouseKind kind, const auto& visit) const {
    const Layout& layout = in_.puzzles.front().puzzle.layout;
    for (const int cell : layout.HousesOf(kind)[kSide / 2].cells) visit(CellSet::Of(cell));
  }

  const FrontMatter& in_;
  const Box& content_;
  double y_;
  double size_;
};

}  // namespace

void DrawTitlePage(const FrontMatter& in, const Box& content) {
  const std::string_view title = in.options.title.empty() ? kDefaultTitle : in.options.title;
  const FittedTitle fitted = FitTitle(in, title, content);
  const double middle = content.x + content.width / 2;
  double y = DrawCentredLines(in, fitted.lines, fitted.style,
                              {middle, content.y + 0.1 * content.height + fitted.style.size});
  const double small = content.width / 30;
  const TextStyle author{Face::kItalic, small, 0.2};
  if (!in.options.author.empty()) {
    y += 2.2 * small;
    const std::string name = Shortened(in.fonts, in.options.author, author, content.width);
    DrawText(in.context, in.fonts, name, author, {middle, y}, Align::kCentre);
  }
  const TextStyle count{Face::kRegular, small, 0.2};
  const double foot = content.Bottom() - small;
  DrawText(in.context, in.fonts, CountOf(in.puzzles.size()), count, {middle, foot}, Align::kCentre);
  const double room = foot - 2.5 * small - (y + 2.5 * small);
  const double side = std::min(0.62 * content.width, room);
  if (side < 60) return;
  const double top = y + 2.5 * small + (room - side) / 2;
  const Tint tint = in.options.tint == Tint::kColour ? Tint::kColour : Tint::kGrey;
  DrawBoard(in.context, in.fonts, Emblem(in), {.side = side, .tint = tint},
            {middle - side / 2, top});
}

void DrawRulesPage(const FrontMatter& in, const Box& content) {
  RulesPage(in, content).Draw();
}

}  // namespace tessel::paper
