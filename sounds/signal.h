// What the sounds are built from: oscillators, noise, envelopes, filters and a mix.
//
// Everything is plain arithmetic, which gives the same bits on every machine and at every level of
// optimisation; the functions of the mathematical library do not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace tessel::synth {

inline constexpr int kSampleRate = 44'100;

using Signal = std::vector<double>;                   // samples; full scale is -1..1
using Curve = std::function<double(double seconds)>;  // a pitch in Hz over time
using Partials = std::vector<double>;                 // weights of the 1st, 2nd, 3rd ... partial

constexpr std::size_t SamplesIn(double seconds) {
  return static_cast<std::size_t>(seconds * kSampleRate + 0.5);
}
constexpr double TimeOf(std::size_t sample) {
  return static_cast<double>(sample) / kSampleRate;
}

// The sine of a number of full turns, to nine decimals.
double Sine(double turns);

Curve Steady(double hertz);
// From one pitch to the other in that time, evenly in the length of the period, and on from there.
Curve Glide(double from, double to, double seconds);

Signal Silence(double seconds);
Signal Tone(double seconds, const Curve& pitch, const Partials& partials = {1.0});
Signal Noise(double seconds, std::uint64_t seed);

// Falls to one half in every `halfLife` seconds.
Signal Decaying(Signal signal, double halfLife);
// Rises smoothly from nothing in `attack` seconds and falls to nothing in the last `release`.
Signal Shaped(Signal signal, double attack, double release);
Signal Scaled(Signal signal, double gain);

// Passes a band around the centre, which must stay below 7 kHz; a higher quality is a narrower one.
Signal BandPass(Signal signal, const Curve& centre, double quality);
Signal LowPass(Signal signal, double cutoff);
Signal HighPass(Signal signal, double cutoff);

// Adds `part` to `mix` from `start` seconds on; what lies beyond the end of `mix` is cut off.
void Add(Signal& mix, double start, const Signal& part, double gain = 1.0);

// Ready to be heard: no constant part, no click at either end, the loudest twentieth of a second
// at `level` (root mean square) unless the highest peak would come above kHighestPeak, and
// kTrailingSilence at the end.
Signal Finished(Signal signal, double level);
inline constexpr double kHighestPeak = 0.8;
// In seconds. Qt Multimedia drops what the sound server still holds back when a file ends, which
// was measured to be the last 0.12 s.
inline constexpr double kTrailingSilence = 0.25;

}  // namespace tessel::synth
