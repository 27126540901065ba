// Calmer grounds for cages, for those who look at them all day.
#pragma once

#include "core/colour.h"

namespace tessel {

// Cages keep the hue that the loud colours give them.
inline constexpr CageColours kSofterCages{{{208, 208, 204},
                                           {214, 206, 150},
                                           {196, 192, 236},
                                           {178, 218, 160},
                                           {164, 218, 226},
                                           {240, 180, 166},
                                           {236, 186, 222},
                                           {245, 226, 140},
                                           {252, 250, 244}}};

}  // namespace tessel
