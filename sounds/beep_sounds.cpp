#include <utility>

#include "sounds/effects.h"

namespace tessel::synth {

namespace {

Signal Pip(double seconds, double pitch) {
  return Shaped(Decaying(Tone(seconds, Steady(pitch), {1.0, 0.25, 0.08}), 0.06), 0.004, 0.03);
}

Signal Buzz() {
  Partials saw;
  for (int n = 1; n <= 24; ++n) saw.push_back(1.0 / n);
  Signal buzz = Tone(0.17, Steady(130), saw);
  Add(buzz, 0, Tone(0.17, Steady(138), saw));
  return Shaped(LowPass(std::move(buzz), 2500), 0.008, 0.03);
}

}  // namespace

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

Signal Error() {
  Signal buzzes = Silence(0.44);
  Add(buzzes, 0, Buzz());
  Add(buzzes, 0.25, Buzz());
  return Finished(std::move(buzzes), 0.17);
}

}  // namespace tessel::synth
