// What a person sees of the window at one moment, and the words for what has changed since another.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/form.h"

namespace tessel {

// A mark counts as seen when it is visible and does not vanish against its cell.
struct SeenCell {
  int text = 0;
  Mask marks = 0;
  Mask boldMarks = 0;
  int cage = 0;  // told by the colour; 0 where nothing is painted

  friend bool operator==(const SeenCell&, const SeenCell&) = default;
};

struct Sight {
  explicit Sight(const Form& form);

  std::string caption;
  std::string notice;
  std::string hintText;  // empty while the frame of the solving mode is hidden
  bool solving = false;
  std::vector<std::string> buttons;  // the buttons that can be clicked now, by their captions
  std::vector<std::string> ticked;   // the ticked boxes by their captions
  std::string redCaptions;           // "E5": row E and column 5
  std::array<SeenCell, kCellCount> cells;
};

// One line for each thing that changed; whole boards where much did.
std::vector<std::string> ChangesBetween(const Sight& before, const Sight& after);

// The buttons that can be clicked, as a sentence.
std::string ButtonsLine(const Sight& sight);

// The board as a table of rows A to J. A digit stands for itself, marks stand in parentheses.
std::vector<std::string> BoardLines(const Sight& sight);

const char* CaptionOf(CheckBox box);
std::string NameOfCell(int cell);

}  // namespace tessel
