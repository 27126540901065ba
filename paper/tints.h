// Light grounds for cages, as a help for the eye: neighbouring cages differ, nothing else is meant.
#pragma once

#include <array>
#include <optional>

#include "core/layout.h"

namespace tessel::paper {

inline constexpr int kTints = 4;

// Tint 0..3 of the cages 1..9, in their order: cages that share a wall differ. Connected cages can
// always be tinted so; none if cages in several parts cannot.
std::optional<std::array<int, kSide>> TintsOf(const Layout& layout);

}  // namespace tessel::paper
