#include "sounds/effects.h"

#include "core/random_source.h"

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

// Many hands, none of them in time with another; the crowd joins in and dies away.
Signal Applause() {
  SeededRandom random(1);
  Signal crowd = Silence(1.9);
  for (int hands = 0; hands < 24; ++hands) {
    const double loudness = Between(random, 0.3, 1.0);
    const double pause = Between(random, 0.13, 0.22);
    for (double at = Between(random, 0, 0.4); at < 1.85; at += pause * Between(random, 0.9, 1.1)) {
      Add(crowd, at, Clap(random), loudness);
    }
  }
  return Finished(Shaped(std::move(crowd), 0.35, 1.0), 0.10);
}

// A sheet that is turned and laid down.
Signal Patch() {
  Signal sheet = Silence(0.3);
  const Curve rustle = [](double t) { return 1200 + 9000 * t; };
  Add(sheet, 0, Shaped(BandPass(Noise(0.24, 2), rustle, 1.2), 0.14, 0.1));
  Add(sheet, 0.2, Shaped(Decaying(Tone(0.1, Glide(240, 120, 0.1)), 0.018), 0.003, 0.03), 0.4);
  return Finished(std::move(sheet), 0.09);
}

Signal Pip(double seconds, double pitch) {
  return Shaped(Decaying(Tone(seconds, Steady(pitch), {1.0, 0.25, 0.08}), 0.06), 0.004, 0.03);
}

Signal Beep1() {
  return Finished(Pip(0.12, 660), 0.13);
}

Signal Beep2() {
  Signal beeps = Silence(0.2);
  Add(beeps, 0, Pip(0.1, 784));
  Add(beeps, 0.07, Pip(0.13, 1047));
  return Finished(std::move(beeps), 0.12);
}

Signal Beep5() {
  Signal beeps = Silence(0.5);
  for (int i = 0; i < 5; ++i) Add(beeps, 0.09 * i, Pip(0.07, 880));
  return Finished(std::move(beeps), 0.12);
}

// A spring let go: the pitch swings, less and less, around a note that settles upwards.
Signal Boink() {
  const Curve spring = [](double t) {
    const double swing = 0.35 / (1 + 12 * t);
    return (150 + 90 * t) * (1 + swing * Sine(13 * t + 0.25));
  };
  Signal spiral = Decaying(Tone(0.75, spring, {1.0, 0.5, 0.6, 0.2, 0.3, 0.1, 0.15}), 0.13);
  return Finished(Shaped(std::move(spiral), 0.004, 0.2), 0.14);
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

// The lever and the drawer, then the bell twice.
Signal CashRegister() {
  Signal till = Silence(1.1);
  Add(till, 0.0, Clack(1100, 3), 3.0);
  Add(till, 0.06, Clack(2300, 4), 3.5);
  Add(till, 0.1, Bell(1960), 0.7);
  Add(till, 0.2, Bell(2349));
  return Finished(std::move(till), 0.10);
}

Signal Buzz() {
  Partials saw;
  for (int n = 1; n <= 14; ++n) saw.push_back(1.0 / n);
  Signal buzz = Tone(0.17, Steady(110), saw);
  Add(buzz, 0, Tone(0.17, Steady(116.5), saw));
  return Shaped(LowPass(std::move(buzz), 1200), 0.008, 0.03);
}

Signal Error() {
  Signal buzzes = Silence(0.44);
  Add(buzzes, 0, Buzz());
  Add(buzzes, 0.25, Buzz());
  return Finished(std::move(buzzes), 0.13);
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
  Add(mouth, 0, BandPass(throat, Steady(2300), 10), 0.9);
  Add(mouth, 0, BandPass(throat, Steady(3000), 12), 0.6);
  return mouth;
}

Signal Giggle() {
  Signal laugh = Silence(1.1);
  double pitch = 430;
  for (std::uint64_t i = 0; i < 6; ++i) {
    Add(laugh, 0.17 * static_cast<double>(i), Hee(pitch, 5 + i), i == 0 ? 0.7 : 1.0);
    pitch *= i == 0 ? 1.2 : 0.94;
  }
  return Finished(std::move(laugh), 0.12);
}

}  // namespace

Signal EffectOf(Sound sound) {
  switch (sound) {
    case Sound::kApplause:
      return Applause();
    case Sound::kPatch:
      return Patch();
    case Sound::kEntry:
      return Beep2();
    case Sound::kBoink:
      return Boink();
    case Sound::kBlaster:
      return Blaster();
    case Sound::kUnused:
      return Beep5();
    case Sound::kMarkAdded:
      return Beep1();
    case Sound::kCashRegister:
      return CashRegister();
    case Sound::kError:
      return Error();
    case Sound::kGiggle:
      return Giggle();
  }
  return {};
}

}  // namespace tessel::synth
