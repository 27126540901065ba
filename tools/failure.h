// The ways in which work ends early. Only the program's main function catches them.
#pragma once

#include <stdexcept>
#include <string>

namespace tessel::tools {

// The work cannot go on; the message is a line for the user.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Options that do not fit together; the message is a line for the user.
class WrongOptions : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The reader of the output has gone: nothing is left to do, and nothing to say.
class ReaderGone : public std::exception {};

// "cannot write book.pdf: No space left on device", from errno.
Failure SystemFailure(const std::string& what);

}  // namespace tessel::tools
