// A WAV file of one channel and 16 bits a sample.
#pragma once

#include <string>

#include "sounds/signal.h"

namespace tessel::synth {

// The whole file's bytes; samples beyond full scale are cut to it.
std::string WavFileOf(const Signal& signal);

}  // namespace tessel::synth
