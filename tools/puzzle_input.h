// The puzzles that a command is asked to work on.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

#include "formats/puzzle_reader.h"

namespace tessel::tools {

// The options FILE and --from, as every command that reads puzzles has them.
struct PuzzleInput {
  std::vector<std::string> files{"-"};    // "-": standard input
  std::string from;                       // the name of a format; empty: found by looking
  const formats::Format* only = nullptr;  // read as this, whatever the options say
  std::string purpose{};                  // "check"; empty: there may be no puzzles at all

  void Declare(CLI::App& app);
};

// The bytes of the file, or of standard input for "-". Throws Failure when it cannot be opened; the
// source throws when it cannot be read, and when a signal asks to stop.
formats::ByteSource OpenInput(const std::string& file);

// A puzzle, and where it stands: "puzzles.txt:3".
using PuzzleVisitor =
    std::function<void(formats::DescribedPuzzle puzzle, const std::string& place)>;

// Calls `visit` with every puzzle of the files, numbered from 0 on, and tells every fault on
// standard error. False when there was one. Throws Failure when there was neither, though puzzles
// are wanted for a purpose.
[[nodiscard]] bool ForEachPuzzle(const PuzzleInput& input, const PuzzleVisitor& visit);

}  // namespace tessel::tools
