#include "sounds/effects.h"

namespace tessel::synth {

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
