// The techniques and the order in which the hint button asks them, from the simplest to the
// hardest. A new technique is a file that defines its row, a code in core/hint_code.h, and here a
// declaration and a rung.
#pragma once

#include <array>

#include "hints/technique.h"

namespace tessel {

extern const Technique kNakedSingle;
extern const Technique kHiddenSingle;
extern const Technique kPointingPair;
extern const Technique kBoxLine;
extern const Technique kNakedPair;
extern const Technique kNakedTriple;
extern const Technique kNakedQuad;
extern const Technique kNakedQuint;
extern const Technique kHiddenPair;
extern const Technique kHiddenTriple;
extern const Technique kXWing;
extern const Technique kSwordFish;

inline constexpr std::array kLadder{
    &kNakedSingle, &kHiddenSingle, &kPointingPair, &kBoxLine,    &kNakedPair, &kNakedTriple,
    &kHiddenPair,  &kNakedQuad,    &kHiddenTriple, &kNakedQuint, &kXWing,     &kSwordFish,
};

}  // namespace tessel
