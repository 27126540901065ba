#include "tools/filter_notice.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

#include "tools/progress_line.h"

namespace tessel::tools {

namespace {

constexpr std::uint64_t kFirstTries = 1'000;   // until the share is told
constexpr std::uint64_t kManyTries = 100'000;  // until it is told that nothing has passed

}  // namespace

FilterNotice::FilterNotice(const MakeOptions& options, const Tally& tally)
    : range_(options.Indices()),
      want_(options.want),
      start_(tally.next),
      isFiltered_(options.IsFiltered()) {}

std::optional<std::string> FilterNotice::After(const Tally& tally) {
  const std::uint64_t tried = tally.next - start_;
  if (!isFiltered_ || tried < kFirstTries) return std::nullopt;
  if (tally.accepted > 0) {
    if (std::exchange(toldShare_, true)) return std::nullopt;
    return Share(tally, tried);
  }
  if (tried < kManyTries || std::exchange(toldEmptiness_, true)) return std::nullopt;
  return "none of the first " + std::to_string(tally.next - range_.first) +
         " puzzles passes; it goes on until it is stopped";
}

std::string FilterNotice::Share(const Tally& tally, std::uint64_t tried) const {
  const auto all = static_cast<double>(tally.next - range_.first);
  const double share = static_cast<double>(tally.accepted) / all;
  const double left = want_ ? static_cast<double>(*want_ - std::min(*want_, tally.accepted)) / share
                            : static_cast<double>(range_.end - tally.next);
  const double seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - began_).count();
  std::ostringstream text;
  text.precision(3);
  text << 100 * share << " % of the first " << tally.next - range_.first << " puzzles pass; about "
       << SpokenTime(left * seconds / static_cast<double>(tried)) << " to go";
  return text.str();
}

}  // namespace tessel::tools
