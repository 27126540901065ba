// The real program, started as a shell would start it.
#pragma once

#include <string>
#include <vector>

namespace tessel {

struct Outcome {
  int code = -1;  // the exit code; 128 + its number for a signal
  std::string out;
  std::string err;
};

// Runs `tessel` with the arguments and `input` as its standard input, and waits for its end.
Outcome RunTessel(const std::vector<std::string>& arguments, const std::string& input = "");
// Runs a line of shell, in which "$tessel" is the program.
Outcome RunShell(const std::string& line, const std::string& input = "");

}  // namespace tessel
