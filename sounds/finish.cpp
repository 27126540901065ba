#include <algorithm>
#include <cmath>
#include <utility>

#include "sounds/signal.h"

namespace tessel::synth {

namespace {

double MeanSquare(Signal::const_iterator begin, Signal::const_iterator end) {
  double sum = 0;
  for (auto sample = begin; sample != end; ++sample) sum += *sample * *sample;
  return begin == end ? 0 : sum / static_cast<double>(end - begin);
}

double LoudestWindow(const Signal& signal) {
  const auto window = static_cast<std::ptrdiff_t>(SamplesIn(0.05));
  double loudest = 0;
  for (auto begin = signal.begin(); begin < signal.end();) {
    const auto end = begin + std::min(window, signal.end() - begin);
    loudest = std::max(loudest, MeanSquare(begin, end));
    begin = end;
  }
  return std::sqrt(loudest);
}

double Peak(const Signal& signal) {
  double peak = 0;
  for (const double sample : signal) peak = std::max(peak, std::abs(sample));
  return peak;
}

}  // namespace

Signal Finished(Signal signal, double level) {
  constexpr double kFade = 0.004;
  constexpr double kLowestAudible = 30;
  signal = Shaped(HighPass(std::move(signal), kLowestAudible), kFade, kFade);
  const double gain = std::min(level / LoudestWindow(signal), kHighestPeak / Peak(signal));
  signal.resize(signal.size() + SamplesIn(kTrailingSilence));
  return Scaled(std::move(signal), gain);
}

}  // namespace tessel::synth
