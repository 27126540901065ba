// The ten sounds.
#pragma once

#include "core/sounds.h"
#include "sounds/signal.h"

namespace tessel::synth {

Signal EffectOf(Sound sound);

// human_sounds.cpp
Signal Applause();
Signal Giggle();

// object_sounds.cpp
Signal Patch();
Signal Boink();
Signal Blaster();
Signal CashRegister();

// beep_sounds.cpp
Signal Beep1();
Signal Beep2();
Signal Beep5();
Signal Error();

}  // namespace tessel::synth
