#include <utility>

#include "core/random_source.h"
#include "sounds/effects.h"

namespace tessel::synth {

namespace {

double Between(SeededRandom& random, double low, double high) {
  return low + (high - low) * static_cast<double>(random.Next());
}

// One pair of hands: a burst of noise, coloured by the hollow between the palms.
Signal Clap(SeededRandom& random) {
  const auto seed = static_cast<std::uint64_t>(Between(random, 0, 1e6));
  const Curve palms = Steady(Between(random, 700, 2400));
  return Decaying(BandPass(Noise(0.05, seed), palms, 1.5), Between(random, 0.004, 0.009));
}

// "hee": a breath, then a voice that jumps up and falls, through the hollows of throat and mouth.
Signal Hee(double pitch, std::uint64_t seed) {
  const Curve voicePitch = [=](double t) { return pitch * (1 + 3 * t - 28 * t * t); };
  Partials cords;
  for (int n = 1; n <= 16; ++n) cords.push_back(1.0 / n);
  Signal throat = Silence(0.16);
  Add(throat, 0, Shaped(Noise(0.06, seed), 0.03, 0.02), 0.25);
  Add(throat, 0.035, Shaped(Tone(0.12, voicePitch, cords), 0.02, 0.06));
  Signal mouth = BandPass(throat, Steady(430), 4);
  Add(mouth, 0, BandPass(throat, Steady(2300), 10), 1.6);
  Add(mouth, 0, BandPass(throat, Steady(3000), 12), 1.1);
  return mouth;
}

}  // namespace

// Many hands, none of them in time with another; the crowd joins in and dies away.
Signal Applause() {
  SeededRandom random(1);
  Signal crowd = Silence(1.7);
  for (int hands = 0; hands < 24; ++hands) {
    const double loudness = Between(random, 0.3, 1.0);
    const double pause = Between(random, 0.13, 0.22);
    for (double at = Between(random, 0, 0.4); at < 1.65; at += pause * Between(random, 0.9, 1.1)) {
      Add(crowd, at, Clap(random), loudness);
    }
  }
  return Finished(Shaped(std::move(crowd), 0.35, 1.0), 0.10);
}

Signal Giggle() {
  Signal laugh = Silence(1.1);
  double pitch = 430;
  for (std::uint64_t i = 0; i < 6; ++i) {
    Add(laugh, 0.17 * static_cast<double>(i), Hee(pitch, 5 + i), i == 0 ? 0.7 : 1.0);
    pitch *= i == 0 ? 1.2 : 0.94;
  }
  return Finished(std::move(laugh), 0.15);
}

}  // namespace tessel::synth
