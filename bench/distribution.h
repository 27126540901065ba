// Measured values in order: medians, the far end, the mean.
#pragma once

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

namespace tessel::bench {

class Distribution {
 public:
  explicit Distribution(std::vector<double> values) : values_(std::move(values)) {
    std::sort(values_.begin(), values_.end());
  }

  std::size_t Size() const { return values_.size(); }
  // The value that `fraction` of all values do not exceed.
  double Quantile(double fraction) const {
    const auto rank = static_cast<std::size_t>(fraction * static_cast<double>(values_.size()));
    return values_.at(std::min(rank, values_.size() - 1));
  }
  double Median() const { return Quantile(0.5); }
  double Min() const { return values_.at(0); }
  double Max() const { return values_.at(values_.size() - 1); }
  double Sum() const { return std::accumulate(values_.begin(), values_.end(), 0.0); }
  double Mean() const { return Sum() / static_cast<double>(values_.size()); }

 private:
  std::vector<double> values_;
};

}  // namespace tessel::bench
