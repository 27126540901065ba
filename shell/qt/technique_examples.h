// A board for each technique of the hints, taken from a game.
#pragma once

#include <span>

#include "core/board.h"
#include "core/layout.h"
#include "hints/technique.h"

namespace tessel {

struct TechniqueExample {
  const Technique* technique;
  const char* title;
  const char* meaning;  // what the hint means and what to do about it, in plain words
  const char* cages;    // 81 digits
  const char* digits;   // 81 digits, 0 for an empty cell
  const char* marks;    // three hexadecimal digits a cell, bit digit - 1

  Layout Cages() const;
  Grid Digits() const;
  MaskBoard Marks() const;
};

// In the order in which the hint button looks for them.
std::span<const TechniqueExample> TechniqueExamples();

}  // namespace tessel
