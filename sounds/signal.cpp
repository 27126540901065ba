#include "sounds/signal.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/random_source.h"

namespace tessel::synth {

namespace {

// 0 to 1 as `x` goes from 0 to 1, level at both ends.
double SmoothStep(double x) {
  x = std::clamp(x, 0.0, 1.0);
  return x * x * (3 - 2 * x);
}

}  // namespace

double Sine(double turns) {
  double x = turns - std::floor(turns + 0.5);  // -0.5..0.5
  if (x > 0.25) x = 0.5 - x;
  if (x < -0.25) x = -0.5 - x;
  x *= 2 * std::numbers::pi;
  double term = x;
  double sum = x;
  for (int n = 2; n <= 14; n += 2) {
    term *= -x * x / (n * (n + 1));
    sum += term;
  }
  return sum;
}

Curve Steady(double hertz) {
  return [=](double) { return hertz; };
}

Curve Glide(double from, double to, double seconds) {
  return [=](double t) { return 1 / (1 / from + (1 / to - 1 / from) * (t / seconds)); };
}

Signal Silence(double seconds) {
  return Signal(SamplesIn(seconds));
}

Signal Tone(double seconds, const Curve& pitch, const Partials& partials) {
  Signal signal = Silence(seconds);
  double turns = 0;
  for (std::size_t i = 0; i < signal.size(); ++i) {
    double number = 1;
    for (const double weight : partials) signal[i] += weight * Sine(number++ * turns);
    turns += pitch(TimeOf(i)) / kSampleRate;
  }
  return signal;
}

Signal Noise(double seconds, std::uint64_t seed) {
  SeededRandom random(seed);
  Signal signal = Silence(seconds);
  for (double& sample : signal) sample = 2.0 * static_cast<double>(random.Next()) - 1;
  return signal;
}

Signal Decaying(Signal signal, double halfLife) {
  const double factor = 1 - std::numbers::ln2 / (halfLife * kSampleRate);
  double gain = 1;
  for (double& sample : signal) {
    sample *= gain;
    gain *= factor;
  }
  return signal;
}

Signal Shaped(Signal signal, double attack, double release) {
  const double seconds = TimeOf(signal.size() - 1);
  for (std::size_t i = 0; i < signal.size(); ++i) {
    const double t = TimeOf(i);
    signal[i] *= SmoothStep(t / attack) * SmoothStep((seconds - t) / release);
  }
  return signal;
}

Signal Scaled(Signal signal, double gain) {
  for (double& sample : signal) sample *= gain;
  return signal;
}

// A state-variable filter: two integrators in a loop.
Signal BandPass(Signal signal, const Curve& centre, double quality) {
  const double damping = 1 / quality;
  double low = 0;
  double band = 0;
  for (std::size_t i = 0; i < signal.size(); ++i) {
    const double speed = 2 * Sine(centre(TimeOf(i)) / (2 * kSampleRate));
    low += speed * band;
    band += speed * (signal[i] - low - damping * band);
    signal[i] = damping * band;
  }
  return signal;
}

Signal LowPass(Signal signal, double cutoff) {
  const double step = 2 * std::numbers::pi * cutoff / kSampleRate;
  const double share = step / (1 + step);
  double low = 0;
  for (double& sample : signal) sample = low += share * (sample - low);
  return signal;
}

Signal HighPass(Signal signal, double cutoff) {
  Add(signal, 0, LowPass(signal, cutoff), -1);
  return signal;
}

void Add(Signal& mix, double start, const Signal& part, double gain) {
  const std::size_t first = SamplesIn(start);
  for (std::size_t i = 0; i < part.size() && first + i < mix.size(); ++i) {
    mix[first + i] += gain * part[i];
  }
}

}  // namespace tessel::synth
