#include "tools/grade_chart.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace tessel::tools {

namespace {

using namespace grade;

constexpr std::uint64_t kBarLength = 40;

std::string Bar(std::uint64_t count, std::uint64_t most) {
  if (count == 0) return "";
  const std::uint64_t length = (count * kBarLength + most / 2) / most;
  return std::string(std::max<std::uint64_t>(length, 1), '#');
}

double Percent(std::uint64_t part, std::uint64_t whole) {
  return whole == 0 ? 0 : 100.0 * static_cast<double>(part) / static_cast<double>(whole);
}

void AddLevels(std::ostream& chart, const GradeSummary& summary) {
  const std::uint64_t most = *std::ranges::max_element(summary.levels);
  for (int level = 1; level <= kLevelCount; ++level) {
    const std::uint64_t count = summary.levels[static_cast<std::size_t>(level) - 1];
    chart << "  " << level << " " << std::left << std::setw(10) << NameOf(Level(level))
          << std::right << std::setw(9) << count << std::setw(6) << Percent(count, summary.puzzles)
          << " %" << (count == 0 ? "" : "  ") << Bar(count, most) << "\n";
  }
}

void AddKinds(std::ostream& chart, const GradeSummary& summary) {
  chart << "steps                          puzzles            steps\n";
  for (const StepKindFacts& facts : kStepKinds) {
    const GradeSummary::OfKind& kind = summary.kinds[static_cast<std::size_t>(facts.kind)];
    chart << "  " << std::left << std::setw(26) << facts.name << std::right << std::setw(10)
          << kind.puzzles << std::setw(6) << Percent(kind.puzzles, summary.puzzles) << " %"
          << std::setw(9) << kind.steps << "\n";
  }
}

}  // namespace

std::string ChartOf(const GradeSummary& summary) {
  std::ostringstream chart;
  chart << std::fixed << std::setprecision(1);
  chart << summary.puzzles << (summary.puzzles == 1 ? " puzzle\n" : " puzzles\n");
  AddLevels(chart, summary);
  AddKinds(chart, summary);
  return chart.str();
}

}  // namespace tessel::tools
