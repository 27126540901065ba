// The ten sounds.
#pragma once

#include "core/sounds.h"
#include "sounds/signal.h"

namespace tessel::synth {

Signal EffectOf(Sound sound);

}  // namespace tessel::synth
