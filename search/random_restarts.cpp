#include "search/random_restarts.h"

#include <numeric>
#include <utility>

namespace tessel {

namespace {

constexpr int kSwaps = 500;

class LimitedSearch final : public SearchDriver {
 public:
  explicit LimitedSearch(Progress& progress) : progress_(progress) {}

  bool BeforeIteration() override {
    progress_.Step();
    return !progress_.StopRequested() && ++iterations_ <= kRestartCutoff;
  }
  bool ContinueAfterSolution() override { return false; }

 private:
  Progress& progress_;
  std::int64_t iterations_ = 0;
};

}  // namespace

RandomRestarts::Result RandomRestarts::Run(std::int64_t allowed) {
  const std::int64_t start = search_.Iterations();
  while (search_.Iterations() - start < allowed) {
    DrawOrder();
    search_.StartEmpty(order_);
    LimitedSearch driver(progress_);
    switch (search_.Run(driver)) {
      case SearchResult::kSolved:
        return Result::kFilled;
      case SearchResult::kExhausted:
        return Result::kImpossible;
      case SearchResult::kStopped:
        if (progress_.StopRequested()) return Result::kStopped;
    }
  }
  return Result::kGivenUp;
}

void RandomRestarts::DrawOrder() {
  std::iota(order_.begin(), order_.end(), std::int16_t{0});
  for (int swap = 0; swap < kSwaps; ++swap) {
    const int a = DrawIndex(random_, kCellCount);
    const int b = DrawIndex(random_, kCellCount);
    std::swap(order_[a], order_[b]);
  }
}

}  // namespace tessel
