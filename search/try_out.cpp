#include "search/try_out.h"

#include <limits>
#include <numeric>
#include <utility>

namespace tessel {

namespace {

constexpr int kSwaps = 500;

class LimitedSearch final : public SearchDriver {
 public:
  LimitedSearch(const GameState& state, View& view) : state_(state), view_(view) {}

  bool Proceed() override {
    view_.PumpEvents();
    return !state_.StopRequested && ++iterations_ <= kTryOutLimit;
  }
  bool ContinueAfterSolution() override { return false; }

 private:
  const GameState& state_;
  View& view_;
  std::int64_t iterations_ = 0;
};

}  // namespace

TryOut::End TryOut::Run(std::int64_t allowed) {
  const std::int64_t start = search_.Iterations();
  while (search_.Iterations() - start < allowed) {
    DrawOrder();
    search_.StartEmpty(order_);
    LimitedSearch driver(state_, view_);
    switch (search_.Run(driver)) {
      case SearchEnd::kSolved:
        return End::kFilled;
      case SearchEnd::kExhausted:
        return End::kImpossible;
      case SearchEnd::kStopped:
        if (state_.StopRequested) return End::kStopped;
    }
  }
  return End::kGivenUp;
}

void TryOut::DrawOrder() {
  std::iota(order_.begin(), order_.end(), std::int16_t{0});
  for (int swap = 0; swap < kSwaps; ++swap) {
    const int a = DrawIndex(random_, kCellCount);
    const int b = DrawIndex(random_, kCellCount);
    std::swap(order_[a], order_[b]);
  }
}

bool AdmitsFilling(GameState& state, View& view, ExactCoverSearch& search) {
  SeededRandom random;
  return TryOut(state, view, random, search).Run(kSolvabilityBound) == TryOut::End::kFilled;
}

}  // namespace tessel
