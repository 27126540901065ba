#include "tests/tools/command_line.h"

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "tests/fakes/temporary_folder.h"

namespace tessel {

namespace {

std::string Quoted(const std::string& argument) {
  std::string quoted = "'";
  for (const char character : argument) {
    quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
  }
  return quoted + "'";
}

std::string Contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

Outcome RunShell(const std::string& line, const std::string& input) {
  const TemporaryFolder folder;
  const std::string base = folder.Path().string() + "/";
  std::ofstream(base + "in", std::ios::binary) << input;
  const std::string whole = "tessel=" + Quoted(TESSEL_PROGRAM) + "; { " + line + "\n} <" + base +
                            "in >" + base + "out 2>" + base + "err";
  const int status = std::system(("exec bash -c " + Quoted(whole)).c_str());
  const int code = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
  return {code, Contents(base + "out"), Contents(base + "err")};
}

Outcome RunTessel(const std::vector<std::string>& arguments, const std::string& input) {
  std::string line = "\"$tessel\"";
  for (const std::string& argument : arguments) line += " " + Quoted(argument);
  return RunShell(line, input);
}

}  // namespace tessel
