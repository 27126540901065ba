// The options of tessel print.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "paper/booklet.h"
#include "tools/puzzle_input.h"

namespace tessel::tools {

struct PrintOptions {
  PuzzleInput input;
  std::string output;
  bool force = false;
  std::string page = "A4";
  std::string margins = "15mm";
  std::string gutter;  // empty: by the number of pages where margins are mirrored
  bool mirror = false;
  int perPage = 4;
  std::string title;
  std::string author;
  int numberFrom = 1;
  std::vector<std::string> show;
  std::string solutions = "back";
  bool sections = false;
  std::string tint = "none";
  bool marks = false;
  bool large = false;
  bool codes = false;
  bool titlePage = false;
  bool rulesPage = false;
  std::string side = "90mm";
  double pixelsPerInch = 300;

  void Declare(CLI::App& app);

  // As the printer takes them. Throws WrongOptions for sizes that are none.
  paper::BookletOptions Booklet() const;
  paper::BoardStyle Picture() const;
  bool Shows(const std::string& what) const;
};

}  // namespace tessel::tools
