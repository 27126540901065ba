// Puzzles from a file or from text, in any format that is read.
#pragma once

#include <string>
#include <vector>

#include "formats/puzzle_reader.h"

namespace tessel {

// The file's bytes; they end where reading fails. Errors: it cannot be opened, or is no regular
// file.
tl::expected<formats::ByteSource, std::string> FileSource(const std::string& path);
formats::ByteSource TextSource(std::string text);

// What stands first in an input.
struct FirstPuzzles {
  std::vector<Puzzle> puzzles;  // two at most, which tells whether there are several
  std::string fault;            // the first place that cannot be read; empty where there is none
};

// Looks no further than a megabyte, so that it is done in a blink whatever the input is. `name`
// stands in the fault: "name:3:17: expected ..., found ...".
FirstPuzzles ReadFirstPuzzles(const formats::ByteSource& source, const std::string& name);

}  // namespace tessel
