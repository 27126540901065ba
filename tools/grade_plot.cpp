// A page of SVG, written by hand: bars, lines and texts are all that it needs.
#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

#include "tools/grade_chart.h"

namespace tessel::tools {

namespace {

using namespace grade;

// In the page's units, of which it is 800 wide.
constexpr int kWidth = 800;
constexpr int kHeight = 620;
constexpr int kLeft = 130;
constexpr int kRight = 760;
constexpr int kFirstBar = 70;
constexpr int kBarStep = 30;
constexpr int kTop = 330;  // of the scores
constexpr int kBottom = 560;

// From light to dark, so that the order shows in black and white, too.
constexpr std::array<const char*, kLevelCount> kColours{"#a8d5e5", "#7fb8d6", "#5b94c4",
                                                        "#4a6fae", "#43498f", "#2f2460"};

class Page {
 public:
  Page() { page_ << std::fixed << std::setprecision(2); }

  void Box(double x, double y, double width, double height, const char* colour) {
    page_ << "<rect x=\"" << x << "\" y=\"" << y << "\" width=\"" << width << "\" height=\""
          << height << "\" fill=\"" << colour << "\"/>\n";
  }
  void Line(double x1, double y1, double x2, double y2, const char* colour) {
    page_ << "<line x1=\"" << x1 << "\" y1=\"" << y1 << "\" x2=\"" << x2 << "\" y2=\"" << y2
          << "\" stroke=\"" << colour << "\"/>\n";
  }
  // `anchor`: "start", "middle" or "end" of the text stands at x.
  void Text(double x, double y, const char* anchor, const std::string& text, int size = 14) {
    page_ << "<text x=\"" << x << "\" y=\"" << y << "\" text-anchor=\"" << anchor
          << "\" font-size=\"" << size << "\">" << text << "</text>\n";
  }

  std::string Whole() const {
    std::ostringstream whole;
    whole << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << kWidth << " " << kHeight
          << "\" width=\"" << kWidth << "\" height=\"" << kHeight
          << "\" font-family=\"sans-serif\" fill=\"#222\">\n"
          << "<rect width=\"" << kWidth << "\" height=\"" << kHeight << "\" fill=\"white\"/>\n"
          << page_.str() << "</svg>\n";
    return whole.str();
  }

 private:
  std::ostringstream page_;
};

std::string Share(std::uint64_t part, std::uint64_t whole) {
  std::ostringstream share;
  share << std::fixed << std::setprecision(1) << part << " ("
        << 100.0 * static_cast<double>(part) /
               static_cast<double>(std::max<std::uint64_t>(whole, 1))
        << " %)";
  return share.str();
}

void DrawLevels(Page& page, const GradeSummary& summary) {
  constexpr int labelRoom = 130;
  const auto most = std::max<std::uint64_t>(*std::ranges::max_element(summary.levels), 1);
  for (std::size_t level = 0; level < kLevelCount; ++level) {
    const std::uint64_t count = summary.levels[level];
    const double y = kFirstBar + kBarStep * static_cast<double>(level);
    const double length =
        (kRight - kLeft - labelRoom) * static_cast<double>(count) / static_cast<double>(most);
    page.Text(kLeft - 10, y + 16, "end",
              std::to_string(level + 1) + " " + std::string(NameOf(Level(level + 1))));
    page.Box(kLeft, y, length, kBarStep - 8, kColours[level]);
    page.Text(kLeft + length + 8, y + 16, "start", Share(count, summary.puzzles));
  }
}

// 1, 2 or 5 times a power of ten, at least `least`.
int RoundStep(double least) {
  for (int power = 1;; power *= 10) {
    for (const int factor : {1, 2, 5}) {
      if (factor * power >= least) return factor * power;
    }
  }
}

using Bin = std::array<std::uint64_t, kLevelCount>;  // puzzles by level

struct Histogram {
  int width = 1;          // of a bin, in points of score
  std::vector<Bin> bins;  // from score 0 on

  std::uint64_t Highest() const {
    std::uint64_t highest = 1;
    for (const Bin& bin : bins) {
      std::uint64_t sum = 0;
      for (const std::uint64_t count : bin) sum += count;
      highest = std::max(highest, sum);
    }
    return highest;
  }
};

// Scores above that of all but one puzzle in 200 share the last bin.
int LastScoreShown(const GradeSummary& summary) {
  std::uint64_t left = summary.puzzles / 200;
  for (auto at = summary.scores.rbegin(); at != summary.scores.rend(); ++at) {
    for (const std::uint64_t count : at->second) {
      if (count > left) return std::max(at->first, 1);
      left -= count;
    }
  }
  return 1;
}

Histogram HistogramOf(const GradeSummary& summary) {
  constexpr double usualBins = 50;
  const int last = LastScoreShown(summary);
  Histogram histogram{RoundStep(last / usualBins), {}};
  histogram.bins.resize(static_cast<std::size_t>(last / histogram.width) + 1);
  for (const auto& [score, levels] : summary.scores) {
    const auto bin = static_cast<std::size_t>(std::min(score, last) / histogram.width);
    for (std::size_t level = 0; level < kLevelCount; ++level) {
      histogram.bins[bin][level] += levels[level];
    }
  }
  return histogram;
}

// A piece for each level, the easiest at the foot.
void DrawColumn(Page& page, double x, double width, const Bin& counts, double puzzleHeight) {
  double y = kBottom;
  for (std::size_t level = 0; level < kLevelCount; ++level) {
    const double height = puzzleHeight * static_cast<double>(counts[level]);
    if (height == 0) continue;
    y -= height;
    page.Box(x + 0.5, y, width - 1, height, kColours[level]);
  }
}

void DrawColumns(Page& page, const Histogram& histogram, double pointWidth, double puzzleHeight) {
  for (std::size_t i = 0; i < histogram.bins.size(); ++i) {
    const double width = pointWidth * histogram.width;
    const double x = kLeft + width * static_cast<double>(i);
    DrawColumn(page, x, width, histogram.bins[i], puzzleHeight);
  }
}

void DrawPuzzleScale(Page& page, double highest, double puzzleHeight) {
  const int step = RoundStep(highest / 5);
  for (int puzzles = 0; puzzles <= highest; puzzles += step) {
    const double y = kBottom - puzzleHeight * puzzles;
    page.Line(kLeft, y, kRight, y, "#ddd");
    page.Text(kLeft - 10, y + 4, "end", std::to_string(puzzles), 12);
  }
}

void DrawScoreScale(Page& page, double lastScore, double pointWidth) {
  page.Line(kLeft, kBottom, kRight, kBottom, "#222");
  const int step = RoundStep(lastScore / 8);
  for (int score = 0; score <= lastScore; score += step) {
    const double x = kLeft + pointWidth * score;
    page.Line(x, kBottom, x, kBottom + 5, "#222");
    page.Text(x, kBottom + 20, "middle", std::to_string(score), 12);
  }
}

void DrawScores(Page& page, const Histogram& histogram) {
  const double lastScore = static_cast<double>(histogram.bins.size()) * histogram.width;
  const double pointWidth = (kRight - kLeft) / lastScore;
  const auto highest = static_cast<double>(histogram.Highest());
  const double puzzleHeight = (kBottom - kTop) / highest;
  DrawPuzzleScale(page, highest, puzzleHeight);
  DrawColumns(page, histogram, pointWidth, puzzleHeight);
  DrawScoreScale(page, lastScore, pointWidth);
}

}  // namespace

std::string PlotOf(const GradeSummary& summary) {
  Page page;
  const Histogram histogram = HistogramOf(summary);
  page.Text(kLeft, 40, "start",
            "Levels of " + std::to_string(summary.puzzles) +
                (summary.puzzles == 1 ? " puzzle" : " puzzles"),
            20);
  DrawLevels(page, summary);
  page.Text(kLeft, kTop - 24, "start", "Scores", 20);
  DrawScores(page, histogram);
  page.Text(kRight, kBottom + 44, "end",
            "score, in steps of " + std::to_string(histogram.width) +
                "; the last column holds all above, too",
            12);
  return page.Whole();
}

}  // namespace tessel::tools
