// The ten sounds.
#pragma once

#include "core/sounds.h"
#include "sounds/signal.h"

namespace tessel::synth {

Signal EffectOf(Sound sound);

// people.cpp
Signal Applause();
Signal Giggle();

// things.cpp
Signal Patch();
Signal Boink();
Signal Blaster();
Signal CashRegister();

// beeps.cpp
Signal Beep1();
Signal Beep2();
Signal Beep5();
Signal Error();

}  // namespace tessel::synth
