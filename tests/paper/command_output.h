// What a tool of another maker says about a file that was written.
#pragma once

#include <string>
#include <string_view>

namespace tessel::paper {

struct CommandOutput {
  std::string text;  // of both standard output and standard error
  int status = 0;
};

// Runs a command line of the shell.
CommandOutput OutputOf(const std::string& command);

// A file in the tests' temporary folder, removed at the end.
class TemporaryFile {
 public:
  TemporaryFile(const std::string& name, std::string_view contents);
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace tessel::paper
