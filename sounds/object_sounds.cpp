#include <utility>

#include "sounds/effects.h"

namespace tessel::synth {

namespace {

// A small bell: its partials are no multiples of a common tone, and the high ones die first.
Signal Bell(double pitch) {
  Signal bell = Silence(0.9);
  double halfLife = 0.16;
  double weight = 1;
  for (const double ratio : {1.0, 1.506, 2.0, 2.76, 4.1}) {
    Add(bell, 0, Decaying(Tone(0.9, Steady(pitch * ratio)), halfLife), weight);
    halfLife *= 0.7;
    weight *= 0.6;
  }
  return Shaped(std::move(bell), 0.001, 0.3);
}

Signal Clack(double pitch, std::uint64_t seed) {
  return Decaying(BandPass(Noise(0.06, seed), Steady(pitch), 2.0), 0.006);
}

}  // namespace

// A sheet that is turned and laid down.
Signal Patch() {
  Signal sheet = Silence(0.3);
  const Curve rustle = [](double t) { return 1200 + 9000 * t; };
  Add(sheet, 0, Shaped(BandPass(Noise(0.24, 2), rustle, 1.2), 0.14, 0.1));
  Add(sheet, 0.2, Shaped(Decaying(Tone(0.1, Glide(240, 120, 0.1)), 0.018), 0.003, 0.03), 0.4);
  return Finished(std::move(sheet), 0.09);
}

// A spring let go: the pitch swings, less and less, around a note that settles upwards.
Signal Boink() {
  const Curve spring = [](double t) {
    const double swing = 0.35 / (1 + 12 * t);
    return (210 + 120 * t) * (1 + swing * Sine(13 * t + 0.25));
  };
  Signal spiral = Decaying(Tone(0.75, spring, {0.8, 0.5, 0.8, 0.3, 0.5, 0.2, 0.3}), 0.13);
  return Finished(Shaped(std::move(spiral), 0.004, 0.2), 0.17);
}

// A ray that falls through three octaves, with its echo.
Signal Blaster() {
  const Curve fall = Glide(2200, 170, 0.38);
  const Signal ray = Shaped(Tone(0.38, fall, {1.0, 0.0, 0.33, 0.0, 0.15}), 0.004, 0.15);
  Signal shot = Silence(0.6);
  Add(shot, 0, ray);
  Add(shot, 0.09, ray, 0.4);
  Add(shot, 0.18, ray, 0.15);
  return Finished(std::move(shot), 0.12);
}

// The lever and the drawer, then the bell twice.
Signal CashRegister() {
  Signal till = Silence(1.1);
  Add(till, 0.0, Clack(1100, 3), 3.0);
  Add(till, 0.06, Clack(2300, 4), 3.5);
  Add(till, 0.1, Bell(1960), 0.7);
  Add(till, 0.2, Bell(2349));
  return Finished(std::move(till), 0.10);
}

}  // namespace tessel::synth
